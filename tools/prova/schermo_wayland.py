"""A Wayland desktop of its own for a program, in a window that fills the virtual display.

Mouse and keys reach the display as on any other, and the compositor hands them on; pictures of the
display are pictures of the desktop.
"""

import glob
import os
import re
import subprocess
import time

from schermo import ErroreSchermo, Schermo
from schermo_wine import SchermoWine

# How keys repeat when they are held: so often a second, after so many milliseconds.
RIPETIZIONE = 60, 150
WESTON = """[core]
xwayland={xwayland}
idle-time=0
[shell]
panel-position=none
locking=false
animation=none
startup-animation=none
[keyboard]
repeat-rate={volte}
repeat-delay={dopo}
[output]
name=X1
mode={misura}
scale={scala}
"""
PAZIENZA = 30


class SchermoWayland(Schermo):
    """As Schermo; programs are started as clients of the compositor.

    compositore: "weston" or "mutter". x: they are clients of its X server instead. scala: pixels
    of the display for one of a program's. The compositor is told a whole number of them; one that lies
    between, and any of an X server's, is told to the program, as desktops do.
    """

    def __init__(self, larghezza=1366, altezza=768, compositore="weston", x=False, scala=1):
        super().__init__(larghezza, altezza)
        self._compositore, self._x, self._scala = compositore, x, scala
        self._larghezza, self._altezza = larghezza, altezza
        self._intera = int(scala) if scala == int(scala) and not x else 1
        # Weston's window is so many times as large as what it is told.
        parti = self._intera if compositore == "weston" else 1
        self._mode = f"{larghezza // parti}x{altezza // parti}"
        self.chiude_finestre = compositore != "weston"
        self._diversi = {}

    def __str__(self):
        return f"{self._compositore}{', XWayland' if self._x else ''}, {round(100 * self._scala)} %"

    def scarto(self, albero):
        """A client of Wayland does not know where its window lies: it fills the desktop, in its frame."""
        x, y, larga, alta = max((o.posto for o in albero.visibili() if o.ruolo == "frame"),
                                key=lambda posto: posto[2:])
        lato = (self._larghezza - larga) // 2
        return lato - x, self._altezza - alta - lato - y

    def attendi_il_fuoco(self):
        """Weston tells its X server so when the next thing happens there: a question does."""
        if self._x:
            self._attendi(self._a_fuoco, os.path.join(self._cartella, "compositore"))

    def _a_fuoco(self, _):
        return subprocess.run(["xdotool", "getwindowfocus"], env=self._per_i_programmi(), capture_output=True,
                              check=False, timeout=PAZIENZA).stdout.strip()

    def _per_i_programmi(self):
        return {**os.environ, **self._diversi} if self._diversi else None

    def _avvia_finestre(self):
        comando, ambiente = getattr(self, "_" + self._compositore)()
        registro = os.path.join(self._cartella, "compositore")
        with open(registro, "w", encoding="utf-8") as file:
            self.avvia(*comando, stdout=file, stderr=subprocess.STDOUT, env={**os.environ, **ambiente})
        self._diversi = {"WAYLAND_DISPLAY": self._attendi(self._presa, registro),
                         "XDG_SESSION_TYPE": "wayland",
                         "DISPLAY": self._attendi(self._x_di_dentro, registro) if self._x else "",
                         "QT_QPA_PLATFORM": "xcb" if self._x else "wayland"}
        chiave = glob.glob(os.path.join(self._cartella, ".mutter-Xwaylandauth.*"))
        if chiave:
            self._diversi["XAUTHORITY"] = chiave[0]
        if self._intera != self._scala:
            self._diversi["QT_SCALE_FACTOR"] = str(self._scala)
        finestra = self._attendi(self._finestra, registro)
        # The compositor learns where the pointer is when it moves.
        subprocess.run(["xdotool", "windowmove", finestra, "0", "0", "windowfocus", finestra, "sleep", "0.5",
                        "mousemove", "9", "9", "sleep", "0.2", "mousemove", "99", "99", "sleep", "0.2"],
                       check=True, timeout=PAZIENZA)

    def _weston(self):
        configurazione = os.path.join(self._cartella, "configurazione")
        volte, dopo = RIPETIZIONE
        with open(configurazione, "w", encoding="utf-8") as file:
            file.write(WESTON.format(xwayland=str(self._x).lower(), misura=self._mode, scala=self._intera,
                                     volte=volte, dopo=dopo))
        return ["weston", "--backend=x11-backend.so", "--use-pixman", "--config=" + configurazione], {}

    def _mutter(self):
        return ["mutter", "--nested", "--wayland", *([] if self._x else ["--no-x11"])], {
            "MUTTER_DEBUG_DUMMY_MODE_SPECS": self._mode,
            "MUTTER_DEBUG_DUMMY_MONITOR_SCALES": str(self._intera)}

    def _presa(self, _):
        return next((n for n in os.listdir(self._cartella) if re.fullmatch(r"wayland-\d+", n)), None)

    @staticmethod
    def _x_di_dentro(detto):
        """The compositor says the number, or has its server listen at the next free one."""
        trovato = re.search(r"(?:listening on display|xwayland.*on|public X11 display) (:\d+)", detto)
        return trovato and trovato[1]

    @staticmethod
    def _finestra(_):
        """What lies under the pointer, which begins in the middle of the display; None while nothing does."""
        detto = subprocess.run(["xdotool", "getmouselocation", "--shell"], capture_output=True, text=True,
                               check=False, timeout=PAZIENZA).stdout
        trovata = re.search(r"^WINDOW=(\d+)$", detto, re.M)
        radice = subprocess.run(["xdotool", "search", "--maxdepth", "0", ".*"], capture_output=True, text=True,
                                check=False, timeout=PAZIENZA).stdout.split()
        return trovata and trovata[1] not in radice and trovata[1]

    def _attendi(self, domanda, registro):
        fine = time.monotonic() + PAZIENZA
        while time.monotonic() < fine:
            with open(registro, encoding="utf-8", errors="replace") as file:
                detto = file.read()
            risposta = domanda(detto)
            if risposta:
                return risposta
            time.sleep(0.05)
        raise ErroreSchermo(f"the compositor ({self._compositore}) does not come up:\n{detto}")


def schermo(nome, larghezza=1366, altezza=768, scala=1):
    """A desktop by its name: "x11", "wine", a compositor, or one with "+x", of whose X server programs are clients."""
    if nome == "x11":
        return Schermo(larghezza, altezza)
    if nome == "wine":
        return SchermoWine(larghezza, altezza)
    compositore, _, x = nome.partition("+")
    return SchermoWayland(larghezza, altezza, compositore, x == "x", scala)
