<%@ Page Language="vb" AutoEventWireup="false" Codebehind="Inbox.aspx.vb" Inherits="Corvane.WebMail.InboxPage" %>
<%@ Register TagPrefix="cv" TagName="FolderTree" Src="controls/FolderTree.ascx" %>
<%@ Register TagPrefix="cv" TagName="Toolbar" Src="controls/Toolbar.ascx" %>
<!DOCTYPE html>
<html>
<head>
    <title>[CV_TXT-APP_NAME] - [CV_TXT-INBOX]</title>
    <meta http-equiv="Content-Type" content="text/html; charset=utf-8">
    <script language="javascript" src="scripts/dates.js"></script>
    <script language="javascript" src="scripts/mail.js"></script>
    <script language="javascript">
        function deleteSelected()
        {
            if (countSelected(document.forms[0]) == 0)
            {
                alert('[CV_TXT-NONE_SELECTED]');
                return false;
            }
            return confirm('[CV_TXT-CONFIRM_DELETE]' + '\n\n' + '[CV_TXT-MOVED_TO_DELETED]');
        }
    </script>
</head>
<body>
<form id="frmInbox" method="post" runat="server">
<cv:Toolbar id="ctlToolbar" runat="server" />
<table width="100%" cellspacing="0" cellpadding="0" border="0">
<tr valign="top">
    <td width="180"><cv:FolderTree id="ctlFolders" runat="server" /></td>
    <td>
        <table class="list" width="100%" summary="[CV_TXT-INBOX]">
        <tr>
            <th><input type="checkbox" name="chkAll" title="[CV_TXT-SELECT_ALL]" onclick="selectAll(this.form, this.checked)"></th>
            <th>&nbsp;</th>
            <th>[CV_TXT-FROM]</th><th>[CV_TXT-SUBJECT]</th>
            <th>[CV_TXT-RECEIVED]</th><th>[CV_TXT-SIZE]</th>
        </tr>
        <asp:Repeater id="rptMessages" runat="server">
            <ItemTemplate>
            <tr class="<%# RowClass(Container.DataItem) %>">
                <td><input type="checkbox" name="msg" value="<%# DataBinder.Eval(Container.DataItem, "Id") %>"></td>
                <td><img src="images/unread.gif" width="8" height="8" alt=""></td>
                <td><%# DataBinder.Eval(Container.DataItem, "Sender") %></td>
                <td><a href="ReadMessage.aspx?id=<%# DataBinder.Eval(Container.DataItem, "Id") %>"><%# SubjectOr(Container.DataItem, "[CV_TXT-NO_SUBJECT]") %></a></td>
                <td><%# DataBinder.Eval(Container.DataItem, "Received") %></td>
                <td align="right"><%# DataBinder.Eval(Container.DataItem, "Size") %></td>
            </tr>
            </ItemTemplate>
        </asp:Repeater>
        </table>
        <asp:Panel id="pnlEmpty" runat="server"><p class="empty">[CV_TXT-NO_MESSAGES]</p></asp:Panel>
        <p class="pager">
            <asp:LinkButton id="lnkPrev" runat="server">&lt; [CV_TXT-PAGE_PREV]</asp:LinkButton> |
            <asp:LinkButton id="lnkNext" runat="server">[CV_TXT-PAGE_NEXT] &gt;</asp:LinkButton>
        </p>
    </td>
</tr>
</table>
</form>
</body>
</html>
