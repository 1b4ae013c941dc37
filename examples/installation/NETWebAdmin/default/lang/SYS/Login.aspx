<%@ Page Language="vb" AutoEventWireup="false" Codebehind="Login.aspx.vb" Inherits="Corvane.WebAdmin.LoginPage" %>
<html>
<head>
    <title>[CV_TXT-ADM_TITLE]</title>
    <script language="javascript" src="scripts/admin.js"></script>
</head>
<body>
<form id="frmLogin" method="post" runat="server">
    <h1>[CV_TXT-ADM_TITLE]</h1>
    <p>[CV_TXT-ADM_WELCOME]</p>
    <table>
        <tr><td>[CV_TXT-USERNAME]</td><td><asp:TextBox id="txtUser" runat="server" /></td></tr>
        <tr><td>[CV_TXT-PASSWORD]</td><td><asp:TextBox id="txtPassword" runat="server" TextMode="Password" /></td></tr>
    </table>
    <asp:Button id="btnLogin" runat="server" Text="[CV_TXT-LOGIN_BUTTON]" />
</form>
</body>
</html>
