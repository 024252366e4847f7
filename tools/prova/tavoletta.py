"""The stand-in for the touch surface, worked by lines: see tools/tavoletta/suggeritore.h."""

import contextlib
import os
import select
import subprocess

from schermo import Processo


class ErroreTavoletta(Exception):
    """The stand-in does not come up, or does not hear what it should."""


class Tavoletta:
    """Listens between entering and leaving, on the port where the program looks for HelpiKeys."""

    SECONDI = 20

    def __init__(self, percorso):
        self._percorso = percorso
        self._processo = None
        self._resto = b""

    def __enter__(self):
        self._processo = Processo([self._percorso, "--senza-finestra"], stdin=subprocess.PIPE,
                                  stdout=subprocess.PIPE)
        self.aspetta("in ascolto")
        return self

    def __exit__(self, *errore):
        # What it has not taken yet is lost with it.
        with contextlib.suppress(BrokenPipeError):
            self._processo.stdin.close()
        self._processo.termina()
        self._processo.stdout.close()
        if self._processo.caduto() and not any(errore):
            raise ErroreTavoletta(f"the touch surface was ended by {self._processo.caduto()}")

    def fai(self, riga):
        self._processo.stdin.write(riga.encode() + b"\n")
        self._processo.stdin.flush()

    def aspetta(self, inizio):
        """Reads on to the next line that begins so."""
        while True:
            riga, segno, dopo = self._resto.partition(b"\n")
            if segno:
                self._resto = dopo
                if riga.decode().startswith(inizio):
                    return
                continue
            canale = self._processo.stdout.fileno()
            pronto, _, _ = select.select([canale], [], [], self.SECONDI)
            letti = os.read(canale, 4096) if pronto else b""
            if not letti:
                raise ErroreTavoletta(f"the touch surface does not say {inizio!r}")
            self._resto += letti
