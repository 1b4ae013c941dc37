<%@ Control Language="vb" AutoEventWireup="false" Codebehind="Toolbar.ascx.vb" Inherits="Corvane.WebMail.Toolbar" %>
<table class="toolbar" cellspacing="0" cellpadding="3" border="0">
<tr>
    <td><a href="Compose.aspx" title="[CV_TXT-NEW_MESSAGE]">[CV_TXT-NEW_MESSAGE]</a></td>
    <td><asp:LinkButton id="lnkReply" runat="server" ToolTip="[CV_TXT-REPLY]">[CV_TXT-REPLY]</asp:LinkButton></td>
    <td><asp:LinkButton id="lnkReplyAll" runat="server" ToolTip="[CV_TXT-REPLY_ALL]">[CV_TXT-REPLY_ALL]</asp:LinkButton></td>
    <td><asp:LinkButton id="lnkForward" runat="server" ToolTip="[CV_TXT-FORWARD]">[CV_TXT-FORWARD]</asp:LinkButton></td>
    <td><asp:LinkButton id="lnkDelete" runat="server" ToolTip="[CV_TXT-DELETE]">[CV_TXT-DELETE]</asp:LinkButton></td>
    <td><a href="Inbox.aspx" title="[CV_TXT-REFRESH]">[CV_TXT-REFRESH]</a></td>
    <td><a href="Options.aspx">[CV_TXT-OPTIONS]</a></td>
    <td><a href="logoff.asp">[CV_TXT-LOGOFF]</a></td>
</tr>
</table>
