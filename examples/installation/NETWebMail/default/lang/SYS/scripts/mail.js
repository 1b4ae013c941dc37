// Helpers shared by the message list and the folder list.
var folderNames = ['[CV_TXT-INBOX]', '[CV_TXT-DRAFTS]', '[CV_TXT-SENT]', '[CV_TXT-JUNK]', '[CV_TXT-DELETED]'];
var startFolder = folderNames[0];

function selectAll(form, state)
{
    for (var i = 0; i < form.elements.length; i++)
    {
        if (form.elements[i].name == 'msg')
            form.elements[i].checked = state;
    }
}

function countSelected(form)
{
    var count = 0;
    for (var i = 0; i < form.elements.length; i++)
    {
        if (form.elements[i].name == 'msg' && form.elements[i].checked)
            count++;
    }
    return count;
}

function checkSession(state)
{
    if (state == 0)
    {
        alert('[CV_TXT-SESSION_EXPIRED]');
        top.location.href = 'Login.aspx';
    }
}
