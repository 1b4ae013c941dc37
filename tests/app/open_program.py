"""Opens the program as built on a display: its window, and the box for arguments that are not valid."""
import contextlib
import os
import pathlib
import subprocess
import sys
import tempfile


def status_after(title, keys, *arguments):
    """The program's exit status, once a window of that title has got the keys."""
    search = ["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"]
    with subprocess.Popen([sys.argv[1], *arguments]) as program:
        shown = False
        for _ in range(60):
            if subprocess.run(search, stdout=subprocess.DEVNULL).returncode == 0:
                shown = True
                subprocess.run(["xdotool", "key", *keys], check=True)
            with contextlib.suppress(subprocess.TimeoutExpired):
                status = program.wait(0.3)
                return status if shown else f"no window {title}"
        program.kill()
    return f"{title} is not closed by {keys}"


with tempfile.TemporaryDirectory() as folder:
    registry = pathlib.Path(folder, "registry.reg")
    registry.write_text("Windows Registry Editor Version 5.00\n\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\Corvane]\n"
                        f'"Application Directory"="{folder}"\n')
    pathlib.Path(folder, "NETWebMail", "default").mkdir(parents=True)
    os.environ["CORVANE_REGISTRY"] = str(registry)
    results = [status_after("Corvane Language Translation Tool", ["alt+f", "e"]),
               status_after("CVLangTranslator", ["Return"], "WebMail")]
if results != [0, 2]:
    sys.exit(f"{results}")
