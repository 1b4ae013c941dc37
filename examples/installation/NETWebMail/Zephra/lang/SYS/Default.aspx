<%@ Page Language="vb" AutoEventWireup="true" Inherits="Zephra.Mail.DefaultPage" %>
<html>
<head>
<title>[CV_TXT-APP_NAME]</title>
<script language="javascript" src="scripts/zephra.js"></script>
</head>
<body onload="startList()">
<div id="bar">
  <a href="Compose.aspx">[CV_TXT-COMPOSE]</a> &middot; <a href="Settings.aspx">[CV_TXT-SETTINGS]</a> &middot; <a href="Logoff.aspx">[CV_TXT-LOGOFF]</a>
  <form action="Default.aspx" method="get">
    <input type="text" name="q" title="[CV_TXT-SEARCH_HINT]"><input type="submit" value="[CV_TXT-SEARCH]">
  </form>
</div>
<h1>[CV_TXT-MAIL]</h1>
<div id="state">[CV_TXT-LOADING]</div>
<table id="list">
  <tr><th>[CV_TXT-FROM]</th><th>[CV_TXT-SUBJECT]</th><th>[CV_TXT-RECEIVED]</th></tr>
</table>
<noscript>[CV_TXT-NO_MESSAGES]</noscript>
</body>
</html>
