# Opens the program as built on a display: its window, a fault of its servers, an error that no handler catches, and
# the box for arguments that are not valid. Runs it with the settings at their usual place.
import contextlib
import os
import pathlib
import subprocess
import sys
import tempfile


PROGRAM, ERROR_ON_KEY = sys.argv[1:]
# In a name space of its own, with another /etc.
PLACE_AND_RUN = ("mount -t tmpfs none /etc && mkdir /etc/corvane && cp $CORVANE_REGISTRY /etc/corvane && "
                 "CORVANE_REGISTRY= $0 WebMail default.net French")


def is_shown(title):
    search = ["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"]
    return subprocess.run(search, stdout=subprocess.DEVNULL).returncode == 0


def run(steps, *arguments, **environment):
    """The program's exit status, and how many windows were shown in turn; each gets its keys."""
    done = 0
    with subprocess.Popen([PROGRAM, *arguments], env=os.environ | environment) as program:
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
    lang = pathlib.Path(folder, "NETWebMail", "default", "lang")
    (lang / "SYS").mkdir(parents=True)
    os.environ |= {"CORVANE_REGISTRY": str(registry), "CORVANE_DISTRIBUTION_SERVER": "no server"}
    results = [run([("Corvane Language Translation Tool", "alt+f", "f"), ("Error", "Return", "F12"),
                    ("CVLangTranslator", "Return", "alt+f", "e")], LD_PRELOAD=ERROR_ON_KEY),
               run([("CVLangTranslator", "Return")], "WebMail")]
    has_name_spaces = subprocess.run(["unshare", "-rm", "true"]).returncode == 0
    if has_name_spaces:
        subprocess.run(["unshare", "-rm", "sh", "-c", PLACE_AND_RUN, PROGRAM], check=True)
    results.append((lang / "fr").exists())
if results != [(0, 3), (2, 1), has_name_spaces]:
    sys.exit(f"{results}")
