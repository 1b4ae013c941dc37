<%@ Page Language="vb" AutoEventWireup="false" Codebehind="Options.aspx.vb" Inherits="Corvane.WebMail.OptionsPage" %>
<html>
<head>
    <title>[CV_TXT-APP_NAME] - [CV_TXT-OPTIONS]</title>
    <meta http-equiv="Content-Type" content="text/html; charset=utf-8">
    <script language="javascript">
        function timeFormatLabel() { return '[CV_TXT-TIME_FORMAT]'; }
    </script>
</head>
<body>
<form id="frmOptions" method="post" runat="server">
    <h2>[CV_TXT-OPTIONS]</h2>
    <asp:Label id="lblSaved" runat="server" Visible="false" CssClass="notice">[CV_TXT-OPTIONS_SAVED]</asp:Label>
    <fieldset>
        <legend>[CV_TXT-OPTIONS]</legend>
        <table cellpadding="3">
            <tr>
                <td>[CV_TXT-LANGUAGE]</td>
                <td><asp:DropDownList id="lstLanguage" runat="server" /></td>
            </tr>
            <tr>
                <td>[CV_TXT-TIME_ZONE]</td>
                <td><asp:DropDownList id="lstZone" runat="server" /></td>
            </tr>
            <tr>
                <td>[CV_TXT-TIME_FORMAT]</td>
                <td>
                    <input type="radio" name="hours" value="12"> 11:30 PM
                    <input type="radio" name="hours" value="24"> 23:30
                </td>
            </tr>
            <tr>
                <td>[CV_TXT-PAGE_SIZE]</td>
                <td><asp:TextBox id="txtPageSize" runat="server" Columns="4" ToolTip="[CV_TXT-PAGE_SIZE]" /></td>
            </tr>
            <tr valign="top">
                <td>[CV_TXT-SIGNATURE]</td>
                <td><asp:TextBox id="txtSignature" runat="server" TextMode="MultiLine" Rows="5" Columns="50" /></td>
            </tr>
        </table>
    </fieldset>
    <p><a href="options/filters/FilterEdit.aspx">[CV_TXT-FILTERS]</a></p>
    <p>[CV_TXT-OPTIONS_HINT]</p>
    <asp:Button id="btnSave" runat="server" Text="[CV_TXT-SAVE]" />
    <asp:Button id="btnCancel" runat="server" Text="[CV_TXT-CANCEL]" />
</form>
</body>
</html>
