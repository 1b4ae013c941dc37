<%@ Control Language="vb" AutoEventWireup="true" Inherits="Zephra.Admin.Tabs" %>
<div class="tabs">
  <a href="Domains.aspx" title="[CV_TXT-DOMAINS]">[CV_TXT-DOMAINS]</a>
  <a href="Users.aspx" title="[CV_TXT-USERS]">[CV_TXT-USERS]</a>
  <a href="Security.aspx" title="[CV_TXT-SECURITY]">[CV_TXT-SECURITY]</a>
  <a href="Logoff.aspx">[CV_TXT-LOGOFF]</a>
</div>
