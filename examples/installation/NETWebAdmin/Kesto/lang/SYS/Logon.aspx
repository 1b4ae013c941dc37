<%@ Page Language="C#" Inherits="Kesto.WebAdmin.Logon" %>
<HTML>
<HEAD><TITLE>[CV_TXT-ADM_TITLE]</TITLE></HEAD>
<BODY BGCOLOR="#FFFFFF">
<FORM RUNAT="server">
<TABLE BORDER="1" CELLPADDING="6" ALIGN="center">
<TR><TD COLSPAN="2" ALIGN="center"><B>[CV_TXT-ADM_TITLE]</B></TD></TR>
<TR><TD>[CV_TXT-USERNAME]</TD><TD><asp:TextBox ID="User" RUNAT="server" /></TD></TR>
<TR><TD>[CV_TXT-PASSWORD]</TD><TD><asp:TextBox ID="Password" TextMode="Password" RUNAT="server" /></TD></TR>
<TR><TD COLSPAN="2" ALIGN="right"><asp:Button ID="Go" TEXT="[CV_TXT-LOGIN_BUTTON]" RUNAT="server" /></TD></TR>
</TABLE>
<P ALIGN="center">[CV_TXT-ADM_ONLY]</P>
</FORM>
</BODY>
</HTML>
