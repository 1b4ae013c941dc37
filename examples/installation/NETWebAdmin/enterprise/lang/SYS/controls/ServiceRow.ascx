<%@ Control Language="C#" AutoEventWireup="false" Inherits="Corvane.Enterprise.Admin.ServiceRow" %>
<tr>
    <td><%= ServiceName %></td>
    <td class="state"><%= State %></td>
    <td><%= Since %></td>
    <td>
        <asp:Button id="start" runat="server" Text="[CV_TXT-SVC_START]" /> <asp:Button id="stop" runat="server" Text="[CV_TXT-SVC_STOP]" />
    </td>
</tr>
