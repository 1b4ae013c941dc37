<%@ Page Language="C#" AutoEventWireup="false" Inherits="Corvane.Enterprise.Mail.CalendarPage" %>
<%@ Register TagPrefix="ent" TagName="Header" Src="~/controls/Header.ascx" %>
<!DOCTYPE html>
<html>
<head runat="server">
    <title>[CV_TXT-APP_NAME] | [CV_TXT-CALENDAR]</title>
    <script language="javascript" type="text/javascript" src="scripts/calendar.js"></script>
</head>
<body>
    <form id="calendar" runat="server" onsubmit="return checkTimes(this);">
        <ent:Header id="header" runat="server" />
        <h2>[CV_TXT-CALENDAR]</h2>
        <asp:LinkButton id="today" runat="server" Text="[CV_TXT-CAL_TODAY]" />
        <asp:Calendar id="month" runat="server" Caption="[CV_TXT-CALENDAR]" />
        <fieldset>
            <legend>[CV_TXT-CAL_NEW]</legend>
            <p><label>[CV_TXT-CAL_SUBJECT] <asp:TextBox id="subject" runat="server" /></label></p>
            <p><label>[CV_TXT-CAL_LOCATION] <asp:TextBox id="place" runat="server" /></label></p>
            <p><label>[CV_TXT-CAL_START] <asp:TextBox id="start" runat="server" /></label> <label>[CV_TXT-CAL_END] <asp:TextBox id="end" runat="server" /></label></p>
            <p><asp:CheckBox id="allDay" runat="server" Text="[CV_TXT-CAL_ALLDAY]" /></p>
        </fieldset>
        <asp:Button id="save" runat="server" Text="[CV_TXT-SAVE]" />
        <asp:Button id="cancel" runat="server" Text="[CV_TXT-CANCEL]" />
    </form>
</body>
</html>
