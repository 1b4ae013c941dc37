var calendarViews = [];
calendarViews[0] = { id: 'day',   title: '[CV_TXT-CAL_VIEW_DAY]' };
calendarViews[1] = { id: 'week',  title: '[CV_TXT-CAL_VIEW_WEEK]' };
calendarViews[2] = { id: 'month', title: '[CV_TXT-CAL_VIEW_MONTH]' };

function checkTimes(form) {
    var begin = form['start'].value, end = form['end'].value;
    if (end < begin) {
        alert('[CV_TXT-CAL_ERR_END]');
        return false;
    }
    if (form['conflict'] && form['conflict'].value == '1') {
        return confirm("[CV_TXT-CAL_CONFLICT]");
    }
    return true;
}
