<%@ Control Language="vb" AutoEventWireup="false" Codebehind="FolderTree.ascx.vb" Inherits="Corvane.WebMail.FolderTree" %>
<div class="folders" title="[CV_TXT-FOLDERS]">
    <h3>[CV_TXT-FOLDERS]</h3>
    <ul>
        <li><a href="Inbox.aspx?folder=inbox">[CV_TXT-INBOX]</a> <asp:Label id="lblUnread" runat="server" /></li>
        <li><a href="Inbox.aspx?folder=drafts">[CV_TXT-DRAFTS]</a></li>
        <li><a href="Inbox.aspx?folder=sent">[CV_TXT-SENT]</a></li>
        <li><a href="Inbox.aspx?folder=junk">[CV_TXT-JUNK]</a></li>
        <li><a href="Inbox.aspx?folder=deleted">[CV_TXT-DELETED]</a></li>
    </ul>
    <asp:LinkButton id="lnkNewFolder" runat="server">[CV_TXT-NEW_FOLDER]</asp:LinkButton>
</div>
