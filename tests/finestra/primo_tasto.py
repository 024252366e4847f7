#!/usr/bin/python3
"""Sends keys to a window with a menu, a message box and a dialog, and looks which of them arrive.

    primo_tasto.py <program> [<desktop>]

The first key in what Alt and a letter have opened acts, also while Alt is still held; a key that is
held over the opening does not act there, also where the program hears late that it has gone up; Esc
closes the dialog after it has closed a list; Enter is the dialog's, not that of an option or a check box,
and Yes stands on the left of No, whatever other programs of the desktop do. The desktop is one of schermo_wayland.py, "x11" where none
is named. Ends with 0 when all of this holds.
"""

import os
import signal
import subprocess
import sys
import threading
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "..", "tools", "prova"))

from schermo_wayland import schermo as schermo_di  # noqa: E402

# What is done, by xdotool or by a signal to the program, and the lines that it must have brought by its end,
# in order.
PROVE = [
    ("menu, by arrow and Enter", [("key", "alt+m"), ("key", "Down"), ("key", "Return")],
     ["item chosen"]),
    ("box, by Enter", [("key", "alt+b"), ("key", "Return")], ["box open", "box closed"]),
    ("box, by Space", [("key", "alt+b"), ("key", "space")], ["box open", "box closed"]),
    ("box, while Alt is held", [("keydown", "alt"), ("key", "b"), ("key", "Return"),
                                ("keyup", "alt")], ["box open", "box closed"]),
    ("box, by the Enter that opened it", [("key", "Tab"), ("key", "shift+Tab"),
                                          ("keydown", "Return"), ("wait", "1"),
                                          ("keyup", "Return")], ["box open"]),
    ("box, by the next Enter", [("key", "Return")], ["box closed"]),
    ("box, by the Enter that opened it, of whose end a busy program hears late",
     [("keydown", "Return"), ("wait", "1"), ("program", "STOP"), ("keyup", "Return"),
      ("program", "CONT")], ["box open"]),
    ("box, by the next Enter", [("key", "Return")], ["box closed"]),
    ("dialog, by Esc", [("key", "alt+d"), ("key", "Escape")], ["dialog open", "dialog closed"]),
    ("dialog opened again, by Esc", [("key", "alt+d"), ("key", "Escape")], ["dialog open", "dialog closed"]),
    ("dialog, list opened and closed by Esc, then Esc",
     [("key", "alt+d"), ("key", "space"), ("key", "Escape"), ("key", "Escape")],
     ["dialog open", "dialog closed"]),
    ("dialog, list opened, line chosen, then Esc",
     [("key", "alt+d"), ("key", "space"), ("key", "Down"), ("key", "Return"), ("key", "Escape")],
     ["dialog open", "line chosen", "dialog closed"]),
    ("dialog, list opened by a key that is held", [("key", "alt+d"), ("keydown", "alt"),
                                                   ("keydown", "Down"), ("wait", "1"),
                                                   ("keyup", "Down"), ("keyup", "alt"),
                                                   ("key", "Escape"), ("key", "Escape")],
     ["dialog open", "dialog closed"]),
    ("dialog, box ticked by Space and not by Enter",
     [("key", "alt+d"), ("key", "Tab"), ("key", "Return"), ("key", "space"), ("key", "Escape")],
     ["dialog open", "ticked", "dialog closed"]),
    ("page set-up, an option by its arrow, then Enter",
     [("key", "alt+s"), ("key", "Tab"), ("key", "Right"), ("key", "Return")],
     ["setup open", "setup: across"]),
    ("question, Yes on the left", [("key", "alt+q"), ("key", "Return")], ["question: Yes No"]),
]
PAUSA = 0.5  # seconds after each key; a busy machine shows its windows late
PAUSA_COMPOSITORE = 1.5  # and one desktop inside of another hands the keyboard on later still


class Tasti:
    """The program and the lines that it writes, as they come."""

    def __init__(self, schermo, programma, a_fuoco):
        """a_fuoco: the window is one of the display's own, and has to be given the keyboard."""
        self.pausa = PAUSA if a_fuoco else PAUSA_COMPOSITORE
        self.schermo = schermo
        self._processo = schermo.avvia(programma, stdout=subprocess.PIPE, text=True)
        self.righe = []
        self._pronta = threading.Event()
        threading.Thread(target=self._leggi, daemon=True).start()
        if not self._pronta.wait(30):
            raise SystemExit("the window does not come up")
        if a_fuoco:
            subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", "Tasti",
                            "windowfocus", "--sync"], check=True, timeout=30,
                           stdout=subprocess.DEVNULL)
        time.sleep(self.pausa)

    def _leggi(self):
        for riga in self._processo.stdout:
            if riga.strip() == "ready":
                self._pronta.set()
            else:
                self.righe.append(riga.strip())

    def attendi(self, quante, secondi=3):
        """Until so many lines have come, or the time is over."""
        fine = time.monotonic() + secondi
        while len(self.righe) < quante and time.monotonic() < fine:
            time.sleep(0.05)

    def segnala(self, segnale):
        self._processo.send_signal(segnale)

    def chiudi(self):
        self._processo.termina()


def fai(tasti, gesti, attese):
    tasti.righe.clear()
    for gesto, cosa in gesti:
        if gesto == "wait":
            time.sleep(float(cosa))
            continue
        if gesto == "program":
            tasti.segnala(signal.Signals["SIG" + cosa])
        else:
            tasti.schermo.attendi_il_fuoco()
            subprocess.run(["xdotool", gesto, cosa], check=True, timeout=30)
        time.sleep(tasti.pausa)
    tasti.attendi(len(attese))
    return list(tasti.righe)


def main():
    sbagliate = 0
    programma, nome_schermo = (*sys.argv[1:], "x11")[:2]
    with schermo_di(nome_schermo, 800, 600) as schermo:
        tasti = Tasti(schermo, programma, nome_schermo in ("x11", "wine"))
        for nome, gesti, attese in PROVE:
            venute = fai(tasti, gesti, attese)
            giusto = venute == attese
            sbagliate += not giusto
            print(f"{nome}: {', '.join(venute) or 'nothing'} {'' if giusto else 'WRONG'}",
                  flush=True)
            if not giusto:  # whatever is open is closed for the next
                for _ in range(4):
                    subprocess.run(["xdotool", "key", "Escape"], check=True, timeout=30)
                    time.sleep(tasti.pausa)
        tasti.chiudi()
    return 1 if sbagliate else 0


if __name__ == "__main__":
    sys.exit(main())
