<%@ Page Language="vb" AutoEventWireup="false" Codebehind="FilterEdit.aspx.vb" Inherits="Corvane.WebMail.FilterEditPage" %>
<html>
<head>
    <title>[CV_TXT-OPTIONS] / [CV_TXT-FILTERS]</title>
    <meta http-equiv="Content-Type" content="text/html; charset=utf-8">
    <script language="javascript">
        function checkFilter(form)
        {
            var fields = [form.txtName, form.txtText];
            if (fields[0].value == '') {
                alert('[CV_TXT-FILTER_ERR_NAME]');
                fields[0].focus();
                return false;
            }
            return true;
        }
    </script>
</head>
<body>
<form id="frmFilter" method="post" runat="server" onsubmit="return checkFilter(this)">
    <h2>[CV_TXT-FILTERS]</h2>
    <table cellpadding="3">
        <tr><td>[CV_TXT-FILTER_NAME]</td><td><asp:TextBox id="txtName" runat="server" /></td></tr>
        <tr><td>[CV_TXT-FILTER_IF]</td><td>
            <select name="field">
                <option value="from">[CV_TXT-FROM]</option>
                <option value="to">[CV_TXT-TO]</option>
                <option value="subject">[CV_TXT-SUBJECT]</option>
            </select>
            <asp:TextBox id="txtText" runat="server" />
        </td></tr>
        <tr><td>[CV_TXT-FILTER_MOVE]</td><td>
            <select name="target">
                <option value="inbox">[CV_TXT-INBOX]</option>
                <option value="junk">[CV_TXT-JUNK]</option>
                <option value="deleted">[CV_TXT-DELETED]</option>
            </select>
        </td></tr>
    </table>
    <asp:Button id="btnSave" runat="server" Text="[CV_TXT-SAVE]" />
    <asp:Button id="btnDelete" runat="server" Text="[CV_TXT-DELETE]" />
    <a href="../../Options.aspx">[CV_TXT-CANCEL]</a>
</form>
</body>
</html>
