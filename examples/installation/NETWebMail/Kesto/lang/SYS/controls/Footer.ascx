<%@ Control Language="C#" Inherits="Kesto.WebMail.Footer" %>
<HR>
<P ALIGN="center"><SMALL>[CV_TXT-FOOTER_HELP] <A HREF="mailto:postmaster@corvane.example" TITLE="[CV_TXT-FOOTER_CONTACT]">[CV_TXT-FOOTER_CONTACT]</A></SMALL></P>
