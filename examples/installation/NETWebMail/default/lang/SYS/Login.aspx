<%@ Page Language="vb" AutoEventWireup="false" Codebehind="Login.aspx.vb" Inherits="Corvane.WebMail.LoginPage" %>
<!DOCTYPE html>
<html>
<head>
    <title>[CV_TXT-APP_NAME] - [CV_TXT-LOGIN_TITLE]</title>
    <meta http-equiv="Content-Type" content="text/html; charset=utf-8">
    <link rel="stylesheet" type="text/css" href="../../styles/webmail.css">
    <script language="javascript">
    <!--
        function checkForm(form)
        {
            if (form.txtUser.value == '')
            {
                alert('[CV_TXT-LOGIN_ERR_NAME]');
                form.txtUser.focus();
                return false;
            }
            return true;
        }

        function showReason(code)
        {
            var reasons = new Array();
            reasons[0] = '';
            reasons[1] = '[CV_TXT-LOGIN_ERR_FAILED]';
            reasons[2] = '[CV_TXT-SESSION_EXPIRED]';
            document.getElementById('reason').innerHTML = reasons[code];
        }
    //-->
    </script>
</head>
<body onload="showReason(<%= ReasonCode %>)">
<form id="frmLogin" method="post" runat="server" onsubmit="return checkForm(this)">
    <h1>[CV_TXT-LOGIN_WELCOME]</h1>
    <p id="reason" class="error"></p>
    <table cellspacing="0" cellpadding="4" border="0">
        <tr>
            <td><label for="txtUser">[CV_TXT-USERNAME]</label></td>
            <td><asp:TextBox id="txtUser" runat="server" MaxLength="128" ToolTip="[CV_TXT-USERNAME]" /></td>
        </tr>
        <tr>
            <td><label for="txtPassword">[CV_TXT-PASSWORD]</label></td>
            <td><asp:TextBox id="txtPassword" runat="server" TextMode="Password" ToolTip="[CV_TXT-PASSWORD]" /></td>
        </tr>
        <tr>
            <td><label for="lstLanguage">[CV_TXT-LANGUAGE]</label></td>
            <td><asp:DropDownList id="lstLanguage" runat="server" AutoPostBack="true" /></td>
        </tr>
        <tr>
            <td>&nbsp;</td>
            <td><asp:Button id="btnLogin" runat="server" Text="[CV_TXT-LOGIN_BUTTON]" /></td>
        </tr>
    </table>
    <p class="small">&copy; Corvane</p>
</form>
</body>
</html>
