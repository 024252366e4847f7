"""Mouse and keyboard, as a pupil uses them: events of the display server at places of the screen."""

import subprocess
import time


class Tastiera:
    """Works on the desktop that the environment names."""

    # Between two events, so that no two clicks make a double click of the desktop.
    PAUSA = 0.08

    def giu(self, tasto):
        """Presses a key and holds it; names as the display server has them: space, Return, F10."""
        self._xdotool("keydown", tasto)

    def su(self, tasto):
        self._xdotool("keyup", tasto)

    def batti(self, tasto):
        """A tap; also with modifiers: alt+F4."""
        self._xdotool("key", tasto)
        time.sleep(self.PAUSA)

    @staticmethod
    def _xdotool(*comando):
        subprocess.run(["xdotool", *map(str, comando)], check=True, timeout=30,
                       stdout=subprocess.DEVNULL)


class Mani(Tastiera):
    """A keyboard and a mouse.

    scarto: asked at each click, how far the display's places lie from those that programs tell, (x, y).
    """

    def __init__(self, scarto=lambda: (0, 0)):
        self._dove = None
        self._scarto = scarto

    def muovi(self, x, y):
        # Waiting for a pointer that is there already would take until the tool gives up.
        if self._dove != (x, y):
            self._xdotool("mousemove", "--sync", x, y)
            self._dove = x, y

    def clicca(self, posto):
        """One click of the left button in the middle of a place (x, y, width, height)."""
        x, y, larghezza, altezza = posto
        oltre_x, oltre_y = self._scarto()
        self.muovi(x + larghezza // 2 + oltre_x, y + altezza // 2 + oltre_y)
        self._xdotool("mousedown", 1)
        time.sleep(self.PAUSA)
        self._xdotool("mouseup", 1)
        time.sleep(self.PAUSA)
