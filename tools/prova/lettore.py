"""The screen reader Orca on a desktop of our own: what it says, and what the program tells it."""

import os
import signal
import subprocess
import time

CARTELLA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "lettore")


class ErroreLettore(Exception):
    """The screen reader does not come up."""


class Lettore:
    """Orca from here to `termina`; start the program after it, as who needs one does."""

    SECONDI = 60

    def __init__(self, schermo, cartella):
        """cartella: an empty folder, for its settings and what it says."""
        self._schermo = schermo
        self._cartella = cartella
        self._voce = os.path.join(cartella, "voce")
        self._eventi = os.path.join(cartella, "eventi")
        open(self._voce, "w", encoding="utf-8").close()
        self._orca = None
        self.avvia()
        with open(self._eventi, "w", encoding="utf-8") as uscita:
            schermo.avvia("/usr/bin/python3", os.path.join(CARTELLA, "eventi.py"), stdout=uscita)
        self._aspetta("the events", lambda: os.path.getsize(self._eventi))

    def avvia(self):
        """Starts the reader, again after `termina`."""
        prima = len(self.detto())
        ambiente = {**os.environ, "VOCE": self._voce, "PYTHONPATH": CARTELLA, "LC_ALL": "C.UTF-8",
                    "PYTHONDONTWRITEBYTECODE": "1", "HOME": self._cartella}
        self._orca = self._schermo.avvia(
            "/usr/bin/python3", os.path.join(CARTELLA, "orca_qui.py"),
            os.path.join(self._cartella, "orca"), env=ambiente,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self._aspetta("Orca", lambda: len(self.detto()) > prima)

    def incanta(self):
        """Lets the reader answer nothing any more, as one that hangs."""
        self._orca.send_signal(signal.SIGSTOP)

    def termina(self):
        """Ends the reader in the middle of whatever it does."""
        self._orca.uccidi()

    def _aspetta(self, che_cosa, vero):
        fine = time.monotonic() + self.SECONDI
        while not vero():
            if time.monotonic() > fine:
                raise ErroreLettore(f"{che_cosa} does not come up")
            time.sleep(0.1)

    def detto(self):
        """(seconds, "say" or "stop", words) of all that the reader has handed to its voice."""
        righe = _righe(self._voce, 3)
        return [(float(quando), verbo, parole) for quando, verbo, parole in righe]

    def eventi(self, processo):
        """(seconds, what) of all that a program has told on the accessibility bus."""
        return [(float(quando), f"{interfaccia}:{membro}:{dettaglio}")
                for quando, chi, interfaccia, membro, dettaglio in _righe(self._eventi, 5)
                if int(chi) == processo.pid]


def _righe(percorso, campi):
    with open(percorso, encoding="utf-8") as foglio:
        righe = [riga.rstrip("\n").split("\t") for riga in foglio if riga.endswith("\n")]
    return [riga for riga in righe if len(riga) == campi]
