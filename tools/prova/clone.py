#!/usr/bin/python3
"""Clones the repository into a fresh Debian in which nothing but git is installed, and calls its commands.

    clone.py <folder for the pictures> [<command> ...]

The commands are those of a newcomer, "./run" where none is given. What a command needs and does not
install by itself is missing there, and makes it fail. The tree goes at the end; its pictures stay.
Ends with 77 where no fresh Debian can be made.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time

from giocatore import Errore
from installazione import Debian, SenzaDebian, esegui

# What a virtual display and the tests look for beside files: the kernel's own folders, seen from the
# tree as well, by the command and what it starts and by nobody else.
DENTRO = """
for cosa in sys dev dev/pts dev/shm; do mount --bind "/$cosa" "$1/$cosa" || exit 1; done
mount -t proc proc "$1/proc" || exit 1
exec chroot "$1" sh -c "cd /opt/clone && $2"
"""
NON_QUI = 77  # the exit status that says so
AMBIENTE = {"PATH": "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin", "HOME": "/tmp",
            "LC_ALL": "C.UTF-8"}


def clona(albero):
    qui = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
    albero.apt("install", "-y", "git", "ca-certificates")
    esegui("git", "clone", "--quiet", "--no-hardlinks", qui, albero.dentro("/opt/clone"))


def chiama(albero, comando):
    """Shows what the command says as it says it."""
    print(f"{comando} in a fresh Debian", flush=True)
    inizio = time.monotonic()
    ambiente = {nome: valore for nome, valore in os.environ.items()
                if nome not in ("DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "TMPDIR")}
    esito = subprocess.run(["unshare", "--mount", "--pid", "--fork", "--kill-child", "sh", "-c", DENTRO,
                            "sh", albero.radice, comando], env={**ambiente, **AMBIENTE},
                           stdin=subprocess.DEVNULL, check=False)
    if esito.returncode != 0:
        raise Errore(f"{comando} ended with {esito.returncode} in a fresh Debian")
    print(f"{comando} in a fresh Debian: {time.monotonic() - inizio:.0f} s", flush=True)


def main():
    cartella, *comandi = sys.argv[1:]
    with tempfile.TemporaryDirectory(prefix="clone-") as radice:
        albero = Debian(radice)
        try:
            albero.crea()
            clona(albero)
            for comando in comandi or ["./run"]:
                chiama(albero, comando)
        except SenzaDebian as perche:
            print(f"There is no fresh Debian to be had here: {perche}", file=sys.stderr)
            return NON_QUI
        except Errore as errore:
            print(f"Failed: {errore}", file=sys.stderr)
            return 1
        foto = albero.dentro("/opt/clone/build/immagini")
        if os.path.isdir(foto):
            shutil.copytree(foto, cartella, dirs_exist_ok=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
