#!/usr/bin/python3
"""Clones the repository into a fresh Debian in which nothing but git is installed, and calls its commands.

    clone.py <folder for the pictures> [<command> ...]

The commands are those of a newcomer, "./run" where none is given. What a command needs and does not
install by itself is missing there, and makes it fail. The tree goes at the end; its pictures stay.
Ends with 77 where no fresh Debian can be made.
"""

import os
import shutil
import sys
import tempfile
import time

from dentro import chiama
from giocatore import Errore
from installazione import Debian, SenzaDebian, esegui

NON_QUI = 77  # the exit status that says so
CLONE = "/opt/clone"


def clona(albero):
    qui = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
    albero.apt("install", "-y", "git", "ca-certificates")
    esegui("git", "clone", "--quiet", "--no-hardlinks", qui, albero.dentro(CLONE))


def prova(albero, comando):
    """Shows what the command says as it says it."""
    print(f"{comando} in a fresh Debian", flush=True)
    inizio = time.monotonic()
    esito = chiama(albero.radice, CLONE, ["sh", "-c", comando])
    if esito != 0:
        raise Errore(f"{comando} ended with {esito} in a fresh Debian")
    print(f"{comando} in a fresh Debian: {time.monotonic() - inizio:.0f} s", flush=True)


def main():
    cartella, *comandi = sys.argv[1:]
    with tempfile.TemporaryDirectory(prefix="clone-") as radice:
        albero = Debian(radice)
        try:
            albero.crea()
            clona(albero)
            for comando in comandi or ["./run"]:
                prova(albero, comando)
        except SenzaDebian as perche:
            print(f"There is no fresh Debian to be had here: {perche}", file=sys.stderr)
            return NON_QUI
        except Errore as errore:
            print(f"Failed: {errore}", file=sys.stderr)
            return 1
        foto = albero.dentro(CLONE, "build/immagini")
        if os.path.isdir(foto):
            shutil.copytree(foto, cartella, dirs_exist_ok=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
