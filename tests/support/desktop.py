"""Runs a command on a desktop of its own: an X display with a window manager, and a web server on this computer.

The display has the size that the variable SCREEN names; 800x600 is the smallest supported one. The command finds the web server as
CORVANE_DISTRIBUTION_SERVER and the empty folder that it publishes as TEST_WEB_FOLDER, on TEST_DRIVE if there are drives.
A command that succeeds fails all the same when the toolkit complains on standard error.
"""
import contextlib
import functools
import http.server
import os
import re
import subprocess
import sys
import tempfile
import threading


@contextlib.contextmanager
def server(ready, command, **options):
    """A process in the background that has printed a line which matches."""
    with subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, **options) as process:
        try:
            yield next(line.strip() for line in process.stdout if re.match(ready, line))
        finally:
            process.terminate()


def run(command, environment):
    with tempfile.TemporaryFile("w+", errors="replace") as errors:
        status = subprocess.call(command, env=environment, stderr=errors)
        errors.seek(0)
        text = errors.read()
    sys.stderr.write(text)
    return status or int(re.search(r"(Gtk|Gdk|GLib)\S*-(CRITICAL|WARNING)", text) is not None)


screen = os.environ.get("SCREEN", "800x600") + "x24"
with (tempfile.TemporaryDirectory() as folder,
      server(r"\d", ["Xvfb", "-displayfd", "1", "-nolisten", "tcp", "-screen", "0", screen]) as display,
      http.server.ThreadingHTTPServer(("127.0.0.1", 0), functools.partial(
          http.server.SimpleHTTPRequestHandler, directory=folder)) as web):
    environment = {"NO_AT_BRIDGE": "1", "LSAN_OPTIONS": f"suppressions={sys.path[0]}/library-leaks.txt"} | os.environ
    environment |= {"DISPLAY": f":{display}", "GDK_BACKEND": "x11"}
    threading.Thread(target=web.serve_forever, daemon=True).start()
    with server("ready", ["openbox", "--startup", "echo ready"], env=environment):
        status = run(sys.argv[1:], environment | {
            "CORVANE_DISTRIBUTION_SERVER": f"127.0.0.1:{web.server_port}",
            "TEST_WEB_FOLDER": os.environ.get("TEST_DRIVE", "") + folder})
    web.shutdown()
sys.exit(status)
