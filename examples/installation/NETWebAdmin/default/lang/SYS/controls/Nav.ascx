<%@ Control Language="vb" AutoEventWireup="false" Codebehind="Nav.ascx.vb" Inherits="Corvane.WebAdmin.Nav" %>
<ul class="nav">
    <li><a href="Domains.aspx">[CV_TXT-DOMAINS]</a></li>
    <li><a href="Users.aspx">[CV_TXT-USERS]</a></li>
    <li><a href="Queue.aspx">[CV_TXT-QUEUE]</a></li>
    <li><a href="Logs.aspx">[CV_TXT-LOGS]</a></li>
    <li><a href="Logoff.aspx">[CV_TXT-LOGOFF]</a></li>
</ul>
