"""Runs a command on a desktop of its own: an X display with a window manager, and a web server on this computer.

The display has the size that the variable SCREEN names, 1024x768 without it. The command finds the web server as
CORVANE_DISTRIBUTION_SERVER and the empty folder that it publishes as TEST_WEB_FOLDER, on TEST_DRIVE if there are drives.
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


screen = os.environ.get("SCREEN", "1024x768") + "x24"
with (tempfile.TemporaryDirectory() as folder,
      server(r"\d", ["Xvfb", "-displayfd", "1", "-nolisten", "tcp", "-screen", "0", screen]) as display,
      http.server.ThreadingHTTPServer(("127.0.0.1", 0), functools.partial(
          http.server.SimpleHTTPRequestHandler, directory=folder)) as web):
    environment = {"NO_AT_BRIDGE": "1", "LSAN_OPTIONS": f"suppressions={sys.path[0]}/library-leaks.txt"} | os.environ
    environment |= {"DISPLAY": f":{display}", "GDK_BACKEND": "x11"}
    threading.Thread(target=web.serve_forever, daemon=True).start()
    with server("ready", ["openbox", "--startup", "echo ready"], env=environment):
        status = subprocess.call(sys.argv[1:], env=environment | {
            "CORVANE_DISTRIBUTION_SERVER": f"127.0.0.1:{web.server_port}",
            "TEST_WEB_FOLDER": os.environ.get("TEST_DRIVE", "") + folder})
    web.shutdown()
sys.exit(status)
