var texts = { loading: '[CV_TXT-LOADING]', none: '[CV_TXT-NO_MESSAGES]', offline: '[CV_TXT-OFFLINE]' };

function startList() {
  var request = new XMLHttpRequest();
  request.onreadystatechange = function () {
    if (request.readyState != 4) return;
    var rows = request.responseXML ? request.responseXML.getElementsByTagName('m') : null;
    document.getElementById('state').innerHTML = rows == null ? texts['offline'] : rows[0] ? '' : texts['none'];
  };
  request.open('GET', 'List.aspx', true);
  request.send(null);
}
