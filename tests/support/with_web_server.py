"""Runs a command while a web server publishes an empty folder on a free port of this computer.

The command finds the server as CORVANE_DISTRIBUTION_SERVER and the folder as TEST_WEB_FOLDER, on TEST_DRIVE if it has
drives.
"""
import functools
import http.server
import os
import subprocess
import sys
import tempfile
import threading

with tempfile.TemporaryDirectory() as folder:
    handler = functools.partial(http.server.SimpleHTTPRequestHandler, directory=folder)
    with http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler) as server:
        threading.Thread(target=server.serve_forever, daemon=True).start()
        surroundings = {"CORVANE_DISTRIBUTION_SERVER": f"127.0.0.1:{server.server_port}",
                        "TEST_WEB_FOLDER": os.environ.get("TEST_DRIVE", "") + folder}
        status = subprocess.call(sys.argv[1:], env=os.environ | surroundings)
        server.shutdown()
sys.exit(status)
