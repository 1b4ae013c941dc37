<%@ Control Language="C#" AutoEventWireup="false" Inherits="Corvane.Enterprise.Mail.Header" %>
<div id="top">
    <strong>[CV_TXT-APP_NAME]</strong>
    <a href="Inbox.aspx">[CV_TXT-INBOX]</a>
    <a href="Calendar.aspx">[CV_TXT-CALENDAR]</a>
    <a href="Contacts.aspx">[CV_TXT-CONTACTS]</a>
    <a href="Tasks.aspx">[CV_TXT-TASKS]</a>
    <a href="Logoff.aspx" class="right">[CV_TXT-LOGOFF]</a>
</div>
