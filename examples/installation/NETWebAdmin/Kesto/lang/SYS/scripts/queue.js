function clearQueue(form) {
	if (confirm("[CV_TXT-QUEUE_CONFIRM]")) {
		form.elements[0].name = 'clear';
		form.submit();
	}
}

function report(count) {
	window.status = count == 0 ? '[CV_TXT-QUEUE_EMPTY]' : '';
}
