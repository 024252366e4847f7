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
import sys
import tempfile
import time

from dentro import chiama
from giocatore import Errore
from installazione import Debian, esegui, esito


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
    stato = chiama(albero.radice, cartella, ["sh", "-c", comando], esterna=True)
    if stato != 0:
        raise Errore(f"{comando} ended with {stato} in a fresh Debian")
    print(f"{comando} in a fresh Debian: {time.monotonic() - inizio:.0f} s", flush=True)


def main():
    cartella, *comandi = sys.argv[1:]
    cartella = os.path.abspath(cartella)

    def lavoro():
        with tempfile.TemporaryDirectory(prefix="clone-") as radice:
            clona(cartella)
            albero = Debian(radice)
            albero.crea()
            albero.apt("install", "-y", "git", "ca-certificates")
            for comando in comandi or ["./run"]:
                prova(albero, cartella, comando)
    return esito(lavoro)


if __name__ == "__main__":
    sys.exit(main())
