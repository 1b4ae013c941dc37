
<%@ Page Language="vb" AutoEventWireup="false" Codebehind="ReadMessage.aspx.vb" Inherits="Corvane.WebMail.ReadMessagePage" %>
<%@ Register TagPrefix="cv" TagName="Toolbar" Src="controls/Toolbar.ascx" %>
<html>
<head>
    <title><asp:Literal id="litTitle" runat="server" Text="[CV_TXT-NO_SUBJECT]" /></title>
    <meta http-equiv="Content-Type" content="text/html; charset=utf-8">
    <script language="javascript" src="scripts/dates.js"></script>
</head>
<body>
<form id="frmRead" method="post" runat="server">
    <cv:Toolbar id="ctlToolbar" runat="server" />
    <table class="headers" cellpadding="2">
        <tr><td><b>[CV_TXT-FROM]</b></td><td><asp:Label id="lblFrom" runat="server" /></td></tr>
        <tr><td><b>[CV_TXT-TO]</b></td><td><asp:Label id="lblTo" runat="server" /></td></tr>
        <tr><td><b>[CV_TXT-CC]</b></td><td><asp:Label id="lblCc" runat="server" /></td></tr>
        <tr><td><b>[CV_TXT-RECEIVED]</b></td><td><script language="javascript">document.write(longDate(<%= ReceivedDate %>));</script></td></tr>
        <tr><td><b>[CV_TXT-SUBJECT]</b></td><td><asp:Label id="lblSubject" runat="server">[CV_TXT-NO_SUBJECT]</asp:Label></td></tr>
        <tr><td><b>[CV_TXT-ATTACHMENTS]</b></td><td><asp:PlaceHolder id="phAttachments" runat="server" /></td></tr>
    </table>
    <hr>
    <asp:Literal id="litBody" runat="server" />
    <hr>
    <p><a href="Compose.aspx?reply=<%= MessageId %>">[CV_TXT-REPLY]</a> | <a href="Compose.aspx?replyall=<%= MessageId %>">[CV_TXT-REPLY_ALL]</a> | <a href="Compose.aspx?forward=<%= MessageId %>">[CV_TXT-FORWARD]</a></p>
</form>
</body>
</html>
