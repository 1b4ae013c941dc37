<%@ Page Language="vb" AutoEventWireup="true" Inherits="Zephra.Mail.MessagePage" %>
<html>
<head>
<title>[CV_TXT-APP_NAME]</title>
<script language="javascript">
function removeMessage(id) {
  if (confirm('[CV_TXT-CONFIRM_DELETE_ONE]')) {
    location.href = 'Message.aspx?action=delete&id=' + id;
  }
}
</script>
</head>
<body>
<p><a href="Default.aspx">&laquo; [CV_TXT-BACK]</a></p>
<p id="blocked">[CV_TXT-IMAGES_BLOCKED] <a href="Message.aspx?images=1">[CV_TXT-IMAGES_SHOW]</a></p>
<dl>
  <dt>[CV_TXT-FROM]</dt><dd><%= Message.From %></dd>
  <dt>[CV_TXT-SUBJECT]</dt><dd><%= Message.Subject %></dd>
  <dt>[CV_TXT-RECEIVED]</dt><dd><%= Message.Received %></dd>
</dl>
<div id="body"><%= Message.Body %></div>
<p>
  <a href="Compose.aspx?re=<%= Message.Id %>">[CV_TXT-REPLY]</a>
  <a href="Compose.aspx?fw=<%= Message.Id %>">[CV_TXT-FORWARD]</a>
  <a href="javascript:removeMessage(<%= Message.Id %>)" title="[CV_TXT-DELETE]">[CV_TXT-DELETE]</a>
</p>
</body>
</html>
