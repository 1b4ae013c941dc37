var stateNames = [ "[CV_TXT-SVC_STOPPED]", "[CV_TXT-SVC_RUNNING]" ];

function paint() {
    var cells = document.getElementsByTagName('td');
    for (var i = 0; i < cells.length; i++) {
        if (cells[i].className == 'state') {
            cells[i].innerHTML = cells[i].innerHTML == '1' ? stateNames[1] : stateNames[0];
        }
    }
}

function lost() {
    alert('[CV_TXT-CONNECTION_LOST]');
}
