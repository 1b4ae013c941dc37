<%@ Page Language="C#" Inherits="Kesto.WebMail.Logon" %>
<%@ Register TagPrefix="k" TagName="Footer" Src="controls/Footer.ascx" %>
<HTML>
<HEAD>
<TITLE>[CV_TXT-APP_NAME]</TITLE>
<SCRIPT LANGUAGE="javascript">
var hints = new Array('[CV_TXT-HINT_CAPSLOCK]', '[CV_TXT-HINT_FORGOTTEN]');
function hint(failures) {
	window.status = hints[0];
	if (failures > 1) alert(hints[1]);
}
</SCRIPT>
</HEAD>
<BODY BGCOLOR="#FFFFFF" ONLOAD="hint(<%= Failures %>)">
<FORM RUNAT="server">
<TABLE BORDER="1" CELLPADDING="6" ALIGN="center">
<TR><TD COLSPAN="2" ALIGN="center"><B>[CV_TXT-APP_NAME]</B></TD></TR>
<TR><TD>[CV_TXT-EMAIL]</TD><TD><asp:TextBox ID="Email" RUNAT="server" /></TD></TR>
<TR><TD>[CV_TXT-PASSWORD]</TD><TD><asp:TextBox ID="Password" TextMode="Password" RUNAT="server" /></TD></TR>
<TR><TD COLSPAN="2" ALIGN="right"><asp:Button ID="Go" TEXT="[CV_TXT-LOGIN_BUTTON]" RUNAT="server" /></TD></TR>
</TABLE>
</FORM>
<k:Footer RUNAT="server" />
</BODY>
</HTML>
