<%@ Page Language="vb" AutoEventWireup="true" Inherits="Zephra.Admin.DomainsPage" %>
<%@ Register TagPrefix="z" TagName="Tabs" Src="controls/Tabs.ascx" %>
<html>
<head>
<title>[CV_TXT-ADM_TITLE]</title>
<script language="javascript" src="scripts/tabs.js"></script>
</head>
<body>
<z:Tabs id="tabs" runat="server" />
<h1>[CV_TXT-DOMAINS]</h1>
<table>
  <tr><th></th><th>[CV_TXT-DOMAIN_NAME]</th><th>[CV_TXT-MAILBOXES]</th><th>[CV_TXT-ALIASES]</th></tr>
  <% For Each d In Domains %>
  <tr><td><img src="images/ok.gif" alt="[CV_TXT-DOMAIN_OK]"></td><td><%= d.Name %></td><td><%= d.Mailboxes %></td><td><%= d.Aliases %></td></tr>
  <% Next %>
</table>
<p><a href="DomainAdd.aspx">[CV_TXT-DOMAIN_ADD]</a> &middot; <a href="javascript:removeDomain()">[CV_TXT-DOMAIN_REMOVE]</a></p>
</body>
</html>
