<%@ Page Language="C#" Inherits="Kesto.WebMail.Mail" %>
<%@ Register TagPrefix="k" TagName="Footer" Src="controls/Footer.ascx" %>
<HTML>
<HEAD><TITLE>[CV_TXT-APP_NAME]: [CV_TXT-INBOX]</TITLE></HEAD>
<BODY BGCOLOR="#FFFFFF">
<P><IMG SRC="images/bullet.png" ALT=""> <A HREF="Mail.aspx">[CV_TXT-INBOX]</A>
<IMG SRC="images/bullet.png" ALT=""> <A HREF="Write.aspx">[CV_TXT-NEW_MESSAGE]</A>
<IMG SRC="images/bullet.png" ALT=""> <A HREF="Address.aspx">[CV_TXT-ADDRESS_BOOK]</A>
<IMG SRC="images/bullet.png" ALT=""> <A HREF="Exit.aspx">[CV_TXT-LOGOFF]</A></P>
<P>[CV_TXT-QUOTA_USED]: <%= Used %> / <%= Quota %> MB</P>
<TABLE WIDTH="100%" BORDER="1">
<TR><TH>[CV_TXT-FROM]</TH><TH>[CV_TXT-SUBJECT]</TH><TH>[CV_TXT-SIZE]</TH></TR>
<%= Rows %>
</TABLE>
<FORM RUNAT="server"><asp:Button ID="Empty" TEXT="[CV_TXT-EMPTY_TRASH]" RUNAT="server" /></FORM>
<k:Footer RUNAT="server" />
</BODY>
</HTML>
