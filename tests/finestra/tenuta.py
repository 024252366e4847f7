#!/usr/bin/python3
"""Holds Space, Enter and an access key down on a real display and counts what comes of it.

    tenuta.py <program> [--schermo NAME] [--desktop NAME] [--volte N] [--secondi S] [--a-riposo]

Each hold must be exactly one click, at a fast repeat rate, idle and with both processors busy: Enter
and the access key at the press, Space at the release. Ends with 0 when all were.
"""

import argparse
import os
import subprocess
import sys
import threading
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "..", "tools", "prova"))

from schermo_wayland import schermo as schermo_di  # noqa: E402

# Key by key: what is pressed together, and whether the click comes at the press.
TASTI = [("space", ["space"], False), ("Return", ["Return"], True), ("Alt+C", ["alt", "c"], True)]
# The repeat of a held key: after so many milliseconds, so often a second.
RIPETIZIONE = ("150", "60")
# Seconds in which a click must have come, and those in which no other may follow.
ATTESA = 5
DOPO = 0.3


# Keeps a processor busy, alone among those that were given the same file: when one ends, the next begins.
# Where it got less than half of a moment others keep the processors busy, and it leaves them the next one.
GIRA = """
import fcntl, sys, time
fcntl.flock(file := open(sys.argv[1], "w"), fcntl.LOCK_EX)
while True:
    inizio, prima = time.monotonic(), time.process_time()
    while time.monotonic() < inizio + 0.1: pass
    if time.process_time() - prima < 0.05: time.sleep(0.1)
"""


def carichi(cartella, quanti):
    """Keeps so many processors busy, those who want it at the same time in one folder together."""
    return [subprocess.Popen([sys.executable, "-c", GIRA, os.path.join(cartella, f"busy-{i}")])
            for i in range(quanti)]


class Conta:
    """The program that counts, and its clicks as they come."""

    def __init__(self, schermo, programma, a_fuoco):
        """a_fuoco: the window is one of the display's own, and has to be given the keyboard."""
        self._processo = schermo.avvia(programma, stdout=subprocess.PIPE, text=True)
        self.clic = 0
        self._pronta = threading.Event()
        threading.Thread(target=self._leggi, daemon=True).start()
        if not self._pronta.wait(30):
            raise SystemExit("the window does not come up")
        if a_fuoco:
            subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", "Conta",
                            "windowfocus", "--sync"], check=True, timeout=30,
                           stdout=subprocess.DEVNULL)
        time.sleep(0.3 if a_fuoco else 2)

    def _leggi(self):
        for riga in self._processo.stdout:
            if riga.strip() == "ready":
                self._pronta.set()
            elif riga.strip() == "click":
                self.clic += 1

    def attendi(self, quanti):
        """Until so many clicks have come, or the time is over."""
        fine = time.monotonic() + ATTESA
        while self.clic < quanti and time.monotonic() < fine:
            time.sleep(0.02)

    def chiudi(self):
        self._processo.termina()


def tieni(conta, tasti, secondi):
    """Clicks until the release, and in all."""
    prima = conta.clic
    for tasto in tasti:
        subprocess.run(["xdotool", "keydown", tasto], check=True, timeout=30)
    time.sleep(secondi)
    al_rilascio = conta.clic - prima
    for tasto in reversed(tasti):
        subprocess.run(["xdotool", "keyup", tasto], check=True, timeout=30)
    # A busy machine clicks late; a second click would follow at once.
    conta.attendi(prima + 1)
    time.sleep(DOPO)
    return al_rilascio, conta.clic - prima


def main():
    opzioni = argparse.ArgumentParser()
    opzioni.add_argument("programma")
    opzioni.add_argument("--schermo", default="x11", help="x11, wine, or as in schermo_wayland.py")
    opzioni.add_argument("--desktop", default="")
    opzioni.add_argument("--a-riposo", action="store_true", help="not with both processors busy")
    opzioni.add_argument("--volte", type=int, default=2)
    opzioni.add_argument("--secondi", type=float, default=3)
    scelte = opzioni.parse_args()

    sbagliate = 0
    with schermo_di(scelte.schermo, 800, 600) as schermo:
        os.environ["XDG_CURRENT_DESKTOP"] = scelte.desktop
        subprocess.run(["xset", "r", "rate", *RIPETIZIONE], check=True, timeout=30)
        conta = Conta(schermo, scelte.programma, scelte.schermo in ("x11", "wine"))
        for occupati in (0,) if scelte.a_riposo else (0, os.cpu_count() or 2):
            pesi = carichi(os.path.dirname(os.path.abspath(scelte.programma)), occupati)
            try:
                for nome, tasti, alla_pressione in TASTI:
                    for _ in range(scelte.volte):
                        prima, tutti = tieni(conta, tasti, scelte.secondi)
                        giusto = tutti == 1 and prima == (1 if alla_pressione else 0)
                        sbagliate += not giusto
                        print(f"{scelte.schermo}, {scelte.desktop or 'no desktop'}, {occupati} busy, {nome}: {prima}"
                              f" before the release, {tutti} in all {'' if giusto else 'WRONG'}",
                              flush=True)
            finally:
                for peso in pesi:
                    peso.kill()
                    peso.wait()
        conta.chiudi()
    return 1 if sbagliate else 0


if __name__ == "__main__":
    sys.exit(main())
