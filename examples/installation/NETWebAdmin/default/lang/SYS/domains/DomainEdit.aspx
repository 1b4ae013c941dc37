<%@ Page Language="vb" AutoEventWireup="false" Codebehind="DomainEdit.aspx.vb" Inherits="Corvane.WebAdmin.DomainEditPage" %>
<%@ Register TagPrefix="cv" TagName="Nav" Src="../controls/Nav.ascx" %>
<html>
<head>
    <title>[CV_TXT-ADM_TITLE] - [CV_TXT-DOMAINS]</title>
    <script language="javascript">
        function checkDomain(form)
        {
            if (/^[a-z0-9-]+(\.[a-z0-9-]+)+$/i.test(form.txtDomain.value)) return true;
            alert('[CV_TXT-DOMAIN_ERR_NAME]');
            return false;
        }
    </script>
</head>
<body>
<form id="frmDomain" method="post" runat="server" onsubmit="return checkDomain(this)">
    <cv:Nav id="ctlNav" runat="server" />
    <table>
        <tr><td>[CV_TXT-DOMAIN_NAME]</td><td><asp:TextBox id="txtDomain" runat="server" /></td></tr>
        <tr><td>[CV_TXT-DOMAIN_CATCHALL]</td><td><asp:TextBox id="txtCatchAll" runat="server" ToolTip="[CV_TXT-DOMAIN_CATCHALL_TIP]" /></td></tr>
        <tr><td>[CV_TXT-DOMAIN_MAX_USERS]</td><td><asp:TextBox id="txtMaxUsers" runat="server" /></td></tr>
    </table>
    <asp:Button id="btnSave" runat="server" Text="[CV_TXT-SAVE]" />
    <asp:Button id="btnCancel" runat="server" Text="[CV_TXT-CANCEL]" />
</form>
</body>
</html>
