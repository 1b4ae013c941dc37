<%@ Language="VBScript" %>
<%
Option Explicit
Response.Buffer = True
Response.Expires = -1

Dim strMessage
If Request.QueryString("reason") = "timeout" Then
    strMessage = "[CV_TXT-SESSION_EXPIRED]"
Else
    strMessage = "[CV_TXT-LOGOFF_DONE]"
End If
Session.Abandon
%>
<html>
<head>
    <title>[CV_TXT-APP_NAME] - [CV_TXT-LOGOFF]</title>
</head>
<body>
    <h1>[CV_TXT-LOGOFF]</h1>
    <p><% = strMessage %></p>
    <p>[CV_TXT-LOGOFF_CLOSE]</p>
    <p><a href="Login.aspx">[CV_TXT-LOGIN_BUTTON]</a></p>
</body>
</html>
