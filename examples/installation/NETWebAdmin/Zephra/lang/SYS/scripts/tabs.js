var selected = [];

function removeDomain() {
  if (!selected[0]) {
    alert('[CV_TXT-DOMAIN_NONE]');
    return;
  }
  if (confirm('[CV_TXT-DOMAIN_CONFIRM]')) {
    location.href = 'Domains.aspx?remove=' + escape(selected[0]);
  }
}
