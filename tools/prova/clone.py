#!/usr/bin/python3
"""Clones the repository, and calls the clone's commands in a fresh Debian in which nothing but git is
installed.

    clone.py <folder> [<command> ...]

The clone goes into the folder, with what has been changed and not committed. It has the same path in the
Debian, and stays with all that was built there: outside, other commands go on with that. The commands are
those of a newcomer, "./run" where none is given. What a command needs and does not install by itself is
missing there, and makes it fail. Ends with 77 where no fresh Debian can be made; the clone is there then,
too.
"""

import os
import signal
import sys
import tempfile
import time

from dentro import chiama
from giocatore import Errore
from installazione import Debian, SenzaDebian, esegui

NON_QUI = 77  # the exit status that says so


def clona(cartella):
    """Only what git knows is in it, as it is for everybody."""
    qui = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
    cambiato = esegui("git", "-C", qui, "stash", "create").strip()
    esegui("git", "clone", "--quiet", "--no-hardlinks", qui, cartella)
    if cambiato:
        esegui("git", "-C", cartella, "checkout", "--quiet", "--detach", cambiato)


def prova(albero, cartella, comando):
    """Shows what the command says as it says it."""
    print(f"{comando} in a fresh Debian", flush=True)
    inizio = time.monotonic()
    esito = chiama(albero.radice, cartella, ["sh", "-c", comando], esterna=True)
    if esito != 0:
        raise Errore(f"{comando} ended with {esito} in a fresh Debian")
    print(f"{comando} in a fresh Debian: {time.monotonic() - inizio:.0f} s", flush=True)


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    cartella, *comandi = sys.argv[1:]
    cartella = os.path.abspath(cartella)
    with tempfile.TemporaryDirectory(prefix="clone-") as radice:
        try:
            clona(cartella)
            albero = Debian(radice)
            albero.crea()
            albero.apt("install", "-y", "git", "ca-certificates")
            for comando in comandi or ["./run"]:
                prova(albero, cartella, comando)
        except SenzaDebian as perche:
            print(f"There is no fresh Debian to be had here: {perche}", file=sys.stderr)
            return NON_QUI
        except Errore as errore:
            print(f"Failed: {errore}", file=sys.stderr)
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
