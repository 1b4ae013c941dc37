<%@ Page Language="C#" AutoEventWireup="false" Inherits="Corvane.Enterprise.Mail.LoginPage" %>
<!DOCTYPE html>
<html>
<head runat="server">
    <title>[CV_TXT-APP_NAME]</title>
    <script language="javascript" type="text/javascript">
        //<![CDATA[
        function validate() {
            if (document.getElementById('user').value.length === 0) {
                alert('[CV_TXT-LOGIN_ERR_NAME]');
                return false;
            }
            return true;
        }
        //]]>
    </script>
</head>
<body class="login">
    <form id="login" runat="server" onsubmit="return validate();">
        <div class="box">
            <h1>[CV_TXT-LOGIN_TITLE]</h1>
            <div class="row"><span>[CV_TXT-USERNAME]</span> <input type="text" id="user" runat="server" title="[CV_TXT-USERNAME]" /></div>
            <div class="row"><span>[CV_TXT-PASSWORD]</span> <input type="password" id="pass" runat="server" title="[CV_TXT-PASSWORD]" /></div>
            <div class="row"><span>[CV_TXT-DOMAIN]</span> <select id="domain" runat="server"></select></div>
            <input type="submit" value="[CV_TXT-LOGIN_BUTTON]" />
        </div>
    </form>
</body>
</html>
