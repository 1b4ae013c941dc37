<%@ Page Language="vb" AutoEventWireup="false" ValidateRequest="false" Codebehind="Compose.aspx.vb" Inherits="Corvane.WebMail.ComposePage" %>
<!DOCTYPE html>
<html>
<head>
    <title>[CV_TXT-APP_NAME] - [CV_TXT-NEW_MESSAGE]</title>
    <meta http-equiv="Content-Type" content="text/html; charset=utf-8">
    <script language="javascript">
        var sent = false;

        function checkMessage(form)
        {
            if (form.txtTo.value + form.txtCc.value + form.txtBcc.value == "")
            {
                alert("[CV_TXT-SEND_NO_RECIPIENT]");
                return false;
            }
            if (form.txtSubject.value == "" && !confirm('[CV_TXT-SEND_NO_SUBJECT]'))
                return false;
            sent = true;
            return true;
        }

        function discard()
        {
            return sent || confirm('[CV_TXT-DISCARD_CHANGES]');
        }
    </script>
</head>
<body>
<form id="frmCompose" method="post" enctype="multipart/form-data" runat="server">
    <div class="toolbar">
        <asp:Button id="btnSend" runat="server" Text="[CV_TXT-SEND]" ToolTip="[CV_TXT-SEND]" />
        <asp:Button id="btnDraft" runat="server" Text="[CV_TXT-SAVE_DRAFT]" />
        <asp:Button id="btnCancel" runat="server" Text="[CV_TXT-CANCEL]" />
    </div>
    <table width="100%" cellpadding="2">
        <tr><th align="right">[CV_TXT-TO]</th><td><asp:TextBox id="txtTo" runat="server" Columns="70" /></td></tr>
        <tr><th align="right">[CV_TXT-CC]</th><td><asp:TextBox id="txtCc" runat="server" Columns="70" /></td></tr>
        <tr><th align="right">[CV_TXT-BCC]</th><td><asp:TextBox id="txtBcc" runat="server" Columns="70" /></td></tr>
        <tr><th align="right">[CV_TXT-SUBJECT]</th><td><asp:TextBox id="txtSubject" runat="server" Columns="70" /></td></tr>
        <tr>
            <th align="right">[CV_TXT-PRIORITY]</th>
            <td>
                <select name="priority">
                    <option value="1">[CV_TXT-PRIORITY_HIGH]</option>
                    <option value="3" selected>[CV_TXT-PRIORITY_NORMAL]</option>
                    <option value="5">[CV_TXT-PRIORITY_LOW]</option>
                </select>
            </td>
        </tr>
        <tr>
            <th align="right">[CV_TXT-ATTACHMENTS]</th>
            <td><input type="file" name="attachment" title="[CV_TXT-ADD_ATTACHMENT]"> <asp:LinkButton id="lnkAttach" runat="server">[CV_TXT-ADD_ATTACHMENT]</asp:LinkButton></td>
        </tr>
    </table>
    <asp:TextBox id="txtBody" runat="server" TextMode="MultiLine" Rows="20" Columns="80" />
</form>
</body>
</html>
