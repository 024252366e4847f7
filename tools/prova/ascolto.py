#!/usr/bin/python3
"""Hears what a screen reader hears: which object of a program gets the focus.

As a program: ascolto.py <process number>; writes a line for each object, "role<tab>name", after the
line "ready". As a module: Ascolto, which runs that and keeps the lines.
"""

import subprocess
import sys
import threading

from schermo import Processo


class Ascolto:
    """While one lives, the names of what gets the focus are kept, in their order."""

    def __init__(self, processo):
        """processo: what Schermo.avvia gave back."""
        self._righe = []
        self._pronto = threading.Event()
        self._figlio = Processo(["/usr/bin/python3", __file__, str(processo.pid)],
                                stdout=subprocess.PIPE, text=True)
        threading.Thread(target=self._leggi, daemon=True).start()
        if not self._pronto.wait(20):
            raise RuntimeError("the ear does not open")

    def _leggi(self):
        for riga in self._figlio.stdout:
            if riga.strip() == "ready":
                self._pronto.set()
            else:
                self._righe.append(riga.rstrip("\n").split("\t"))

    def uditi(self):
        """(role, name) of what got the focus since the start."""
        return [tuple(r) for r in self._righe]

    def chiudi(self):
        self._figlio.termina()
        if self._figlio.caduto():
            raise RuntimeError(f"the ear was ended by {self._figlio.caduto()}")


def main():
    import pyatspi
    processo = int(sys.argv[1])

    def udito(evento):
        try:
            if evento.detail1 == 1 and evento.source.get_process_id() == processo:
                print(f"{evento.source.getRoleName()}\t{evento.source.name}", flush=True)
        except (LookupError, RuntimeError):
            pass

    pyatspi.Registry.registerEventListener(udito, "object:state-changed:focused")
    print("ready", flush=True)
    pyatspi.Registry.start()


if __name__ == "__main__":
    main()
