<%@ Page Language="vb" AutoEventWireup="false" Codebehind="Users.aspx.vb" Inherits="Corvane.WebAdmin.UsersPage" %>
<%@ Register TagPrefix="cv" TagName="Nav" Src="controls/Nav.ascx" %>
<html>
<head>
    <title>[CV_TXT-ADM_TITLE] - [CV_TXT-USERS]</title>
    <script language="javascript" src="scripts/admin.js"></script>
    <script language="javascript">
        function removeUser(name)
        {
            return confirm('[CV_TXT-USER_CONFIRM_DELETE]'.replace('%1', name));
        }
        function samePassword(form)
        {
            if (form.txtNew.value == form.txtAgain.value) return true;
            alert('[CV_TXT-PWD_MISMATCH]');
            return false;
        }
    </script>
</head>
<body>
<form id="frmUsers" method="post" runat="server" onsubmit="return samePassword(this)">
    <cv:Nav id="ctlNav" runat="server" />
    <h2>[CV_TXT-USERS]</h2>
    <asp:DataGrid id="grdUsers" runat="server" AutoGenerateColumns="false">
        <Columns>
            <asp:BoundColumn DataField="Name" HeaderText="[CV_TXT-USERNAME]" />
            <asp:BoundColumn DataField="Quota" HeaderText="[CV_TXT-QUOTA]" />
            <asp:BoundColumn DataField="LastLogon" HeaderText="[CV_TXT-LAST_LOGON]" />
            <asp:BoundColumn DataField="Status" HeaderText="[CV_TXT-STATUS]" />
            <asp:ButtonColumn Text="[CV_TXT-EDIT]" CommandName="Edit" />
            <asp:ButtonColumn Text="[CV_TXT-DELETE]" CommandName="Delete" />
        </Columns>
    </asp:DataGrid>
    <h3>[CV_TXT-USER_ADD]</h3>
    <p>[CV_TXT-USERNAME] <asp:TextBox id="txtName" runat="server" /></p>
    <p>[CV_TXT-PASSWORD] <asp:TextBox id="txtNew" runat="server" TextMode="Password" /> [CV_TXT-PWD_REPEAT] <asp:TextBox id="txtAgain" runat="server" TextMode="Password" /></p>
    <asp:Button id="btnAdd" runat="server" Text="[CV_TXT-USER_ADD]" />
</form>
</body>
</html>
