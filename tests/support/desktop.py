# Runs a command on a desktop of its own: an X display with a window manager.
#
# The display has the size that the variable SCREEN names; 800x600 is the smallest supported one. A command that
# succeeds fails all the same when the toolkit complains on standard error.
import contextlib
import os
import re
import subprocess
import sys
import tempfile


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
environment = {"NO_AT_BRIDGE": "1", "LSAN_OPTIONS": f"suppressions={sys.path[0]}/library-leaks.txt"} | os.environ
with server(r"\d", ["Xvfb", "-displayfd", "1", "-nolisten", "tcp", "-screen", "0", screen]) as display:
    environment |= {"DISPLAY": f":{display}", "GDK_BACKEND": "x11"}
    with server("ready", ["openbox", "--startup", "echo ready"], env=environment):
        sys.exit(run(sys.argv[1:], environment))
