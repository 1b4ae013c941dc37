# Opens the program as built on a display: its window, a fault of its servers, and the box for arguments that are not
# valid.
import contextlib
import os
import pathlib
import subprocess
import sys
import tempfile


def is_shown(title):
    search = ["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"]
    return subprocess.run(search, stdout=subprocess.DEVNULL).returncode == 0


def run(steps, *arguments):
    """The program's exit status, and how many windows were shown in turn; each gets its keys."""
    done = 0
    with subprocess.Popen([sys.argv[1], *arguments]) as program:
        for _ in range(60):
            done += done < len(steps) and is_shown(steps[done][0])
            subprocess.run(["xdotool", "key", *(steps[done - 1][1:] if done else ["Shift"])], check=True)
            with contextlib.suppress(subprocess.TimeoutExpired):
                return program.wait(0.3), done
        program.kill()
    return "still open", done


with tempfile.TemporaryDirectory() as folder:
    registry = pathlib.Path(folder, "registry.reg")
    registry.write_text("Windows Registry Editor Version 5.00\n\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\Corvane]\n"
                        f'"Application Directory"="{folder}"\n')
    pathlib.Path(folder, "NETWebMail", "default").mkdir(parents=True)
    os.environ |= {"CORVANE_REGISTRY": str(registry), "CORVANE_DISTRIBUTION_SERVER": "no server"}
    results = [run([("Corvane Language Translation Tool", "alt+f", "f"), ("Error", "Return", "alt+f", "e")]),
               run([("CVLangTranslator", "Return")], "WebMail")]
if results != [(0, 2), (2, 1)]:
    sys.exit(f"{results}")
