// Names of the days, Sunday first, as Date.getDay() counts them.
var dayNames = new Array(7);
dayNames[0] = "[CV_TXT-DAY-0]";
dayNames[1] = "[CV_TXT-DAY-1]";
dayNames[2] = "[CV_TXT-DAY-2]";
dayNames[3] = "[CV_TXT-DAY-3]";
dayNames[4] = "[CV_TXT-DAY-4]";
dayNames[5] = "[CV_TXT-DAY-5]";
dayNames[6] = "[CV_TXT-DAY-6]";

function twoDigits(n)
{
    return (n < 10 ? '0' : '') + n;
}

function longDate(ticks)
{
    var d = new Date(ticks);
    return dayNames[d.getDay()] + ' ' + d.getFullYear() + '-' + twoDigits(d.getMonth() + 1) + '-' + twoDigits(d.getDate())
        + ' ' + twoDigits(d.getHours()) + ':' + twoDigits(d.getMinutes());
}
