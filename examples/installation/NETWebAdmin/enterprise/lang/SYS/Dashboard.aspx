<%@ Page Language="C#" AutoEventWireup="false" Inherits="Corvane.Enterprise.Admin.Dashboard" %>
<%@ Register TagPrefix="ent" TagName="ServiceRow" Src="controls/ServiceRow.ascx" %>
<!DOCTYPE html>
<html>
<head runat="server">
    <title>[CV_TXT-ADM_TITLE] | [CV_TXT-DASHBOARD]</title>
    <script language="javascript" type="text/javascript" src="scripts/status.js"></script>
    <script language="javascript" type="text/javascript">
        function stopService(name) {
            return confirm('[CV_TXT-SVC_CONFIRM_STOP]'.replace('%1', name));
        }
    </script>
</head>
<body>
    <form id="dashboard" runat="server">
        <h1>[CV_TXT-DASHBOARD]</h1>
        <p>[CV_TXT-SERVER_TIME] <asp:Label id="clock" runat="server" /></p>
        <table class="services">
            <caption>[CV_TXT-SERVICES]</caption>
            <thead><tr><th>[CV_TXT-SVC_NAME]</th><th>[CV_TXT-STATUS]</th><th>[CV_TXT-SVC_SINCE]</th><th></th></tr></thead>
            <tbody><asp:PlaceHolder id="rows" runat="server" /></tbody>
        </table>
        <dl>
            <dt>[CV_TXT-STAT_RECEIVED]</dt><dd><%= Received %></dd>
            <dt>[CV_TXT-STAT_SENT]</dt><dd><%= Sent %></dd>
            <dt>[CV_TXT-STAT_REJECTED]</dt><dd><%= Rejected %></dd>
            <dt>[CV_TXT-DISK_FREE]</dt><dd><%= DiskFree %></dd>
        </dl>
        <p><a href="Logoff.aspx">[CV_TXT-LOGOFF]</a></p>
    </form>
</body>
</html>
