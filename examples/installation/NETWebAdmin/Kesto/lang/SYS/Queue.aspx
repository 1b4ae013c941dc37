<%@ Page Language="C#" Inherits="Kesto.WebAdmin.Queue" %>
<HTML>
<HEAD>
<TITLE>[CV_TXT-ADM_TITLE]: [CV_TXT-QUEUE]</TITLE>
<SCRIPT LANGUAGE="javascript" SRC="scripts/queue.js"></SCRIPT>
</HEAD>
<BODY BGCOLOR="#FFFFFF">
<H2>[CV_TXT-QUEUE]</H2>
<TABLE WIDTH="100%" BORDER="1">
<TR><TH>[CV_TXT-FROM]</TH><TH>[CV_TXT-TO]</TH><TH>[CV_TXT-QUEUE_ATTEMPTS]</TH><TH>[CV_TXT-QUEUE_NEXT]</TH></TR>
<%= Rows %>
</TABLE>
<FORM NAME="queue" RUNAT="server">
<asp:Button ID="Retry" TEXT="[CV_TXT-QUEUE_RETRY]" RUNAT="server" />
<INPUT TYPE="button" VALUE="[CV_TXT-QUEUE_CLEAR]" ONCLICK="clearQueue(this.form)">
</FORM>
</BODY>
</HTML>
