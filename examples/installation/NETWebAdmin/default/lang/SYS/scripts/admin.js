var statusText = new Array();
statusText[0] = "[CV_TXT-STATUS_DISABLED]";
statusText[1] = "[CV_TXT-STATUS_ENABLED]";

function leaveFrames()
{
    if (top.frames[0])
        top.location.href = self.location.href;
}
leaveFrames();
