"""A desktop on which programs for Windows run, under Wine, and what they show.

Mouse and keys reach the display as on any other. The accessibility tree of Windows cannot be read from
outside there: an eye in the program tells it (tools/windows/occhio).
"""

import contextlib
import json
import os
import shutil
import socket
import subprocess

from schermo import ErroreSchermo, Schermo

QUI = os.path.dirname(os.path.abspath(__file__))
COSTRUITO = os.path.abspath(os.path.join(QUI, "..", "..", "build", "windows"))
DEV = os.path.join(os.path.dirname(COSTRUITO), "dev")
QT = COSTRUITO + "-qt/fatto"
# What a program stands on that does not lie beside it, as those of the tests.
LIBRERIE = (os.path.join(QT, "bin"), "/usr/lib/gcc/x86_64-w64-mingw32/12-posix", "/usr/x86_64-w64-mingw32/lib")
PLUGIN = (os.path.join(COSTRUITO, "prova"), os.path.join(QT, "plugins"))
# The first start of Wine makes its own disk.
PAZIENZA = 300


def di_windows(*cartelle):
    """Folders of this machine, as a program for Windows is told of them."""
    return ";".join("Z:" + cartella.replace("/", "\\") for cartella in cartelle)


class Finestre:
    """Wine's own disk, with a user of its own, who shares no folder with this one's."""

    def __init__(self, cartella=None, paese=None):
        """paese: language and country whose words the system speaks, such as de_DE; English where none is."""
        self.radice = os.path.abspath(cartella or os.environ.get("WINEPREFIX") or os.path.join(COSTRUITO, "wine"))
        self._paese = self._impara(paese) if paese else {}

    def _impara(self, paese):
        """Wine speaks the language that the C library knows: a folder teaches it one that this machine has not."""
        nome, dove = paese + ".UTF-8", os.path.join(COSTRUITO, "paesi")
        if not os.path.exists(os.path.join(dove, nome)):
            os.makedirs(dove, exist_ok=True)
            subprocess.run(["localedef", "-i", paese, "-f", "UTF-8", os.path.join(dove, nome)], check=True,
                           timeout=PAZIENZA)
        return {"LOCPATH": dove, "LC_ALL": nome}

    def ambiente(self):
        """The environment of a program that runs there."""
        return {**os.environ, **self._paese, "WINEPREFIX": self.radice, "WINEDEBUG": "-all", "WINEARCH": "win64",
                "WINEDLLOVERRIDES": "mscoree,mshtml=;winemenubuilder.exe=d"}

    def prepara(self):
        if not os.path.exists(os.path.join(self.radice, "pronto")):
            shutil.rmtree(self.radice, ignore_errors=True)
            os.makedirs(self.radice)
            self.esegui("wineboot", "--init")
            self._separa()
            open(os.path.join(self.radice, "pronto"), "w", encoding="ascii").close()

    def _separa(self):
        for dove, cartelle, _ in os.walk(os.path.join(self.radice, "drive_c", "users")):
            for nome in cartelle:
                percorso = os.path.join(dove, nome)
                if os.path.islink(percorso):
                    os.remove(percorso)
                    os.mkdir(percorso)

    def esegui(self, *comando, parla="-all", **opzioni):
        """Runs one of Wine's programs, or one for Windows, to its end. parla: what Wine says of itself."""
        if comando[0].endswith(".exe"):
            comando = ("wine", *comando)
        opzioni.setdefault("check", True)
        opzioni.setdefault("timeout", PAZIENZA)
        return subprocess.run(comando, env={**self.ambiente(), "WINEDEBUG": parla},
                              stdin=subprocess.DEVNULL, **opzioni)

    def utente(self, *percorso):
        """A place in the user's folder."""
        utenti = os.path.join(self.radice, "drive_c", "users")
        nome = next(n for n in sorted(os.listdir(utenti)) if n != "Public")
        return os.path.join(utenti, nome, *percorso)

    def ferma(self):
        """Ends whatever runs there."""
        subprocess.run(["wineserver", "-k"], env=self.ambiente(), check=False, timeout=60)
        subprocess.run(["wineserver", "-w"], env=self.ambiente(), check=False, timeout=60)


class SchermoWine(Schermo):
    """As Schermo; what ends in .exe runs under Wine, with an eye in it."""

    def __init__(self, larghezza=1366, altezza=768, finestre=None):
        super().__init__(larghezza, altezza)
        self.finestre = finestre or Finestre()
        self._occhi = []

    def __enter__(self):
        super().__enter__()
        try:
            self.finestre.prepara()
        except (OSError, subprocess.SubprocessError) as errore:
            self.__exit__(type(errore))
            raise ErroreSchermo(f"Wine does not come up: {errore}") from errore
        return self

    def __exit__(self, *errore):
        for occhio in self._occhi:
            occhio.close()
        self._occhi.clear()
        try:
            super().__exit__(*errore)
        finally:
            with contextlib.suppress(OSError):
                self.finestre.ferma()

    def avvia(self, *comando, **opzioni):
        if not comando[0].endswith(".exe"):
            return super().avvia(*comando, **opzioni)
        # Wine keeps what is meant for this machine's own Qt from programs, and hands on what is called so.
        occhio = socket.create_server(("127.0.0.1", 0))
        self._occhi.append(occhio)
        ambiente = {**self.finestre.ambiente(), "WINEQT_PLUGIN_PATH": di_windows(PLUGIN[0]),
                    "WINEQT_QPA_GENERIC_PLUGINS": f"occhio:{occhio.getsockname()[1]}", **opzioni.pop("env", {})}
        if os.path.abspath(comando[0]).startswith(os.path.join(COSTRUITO, "tests", "")):
            ambiente.update(WINEPATH=di_windows(*LIBRERIE), WINEQT_PLUGIN_PATH=di_windows(*PLUGIN))
        processo = super().avvia("wine", *comando, env=ambiente, **opzioni)
        processo.occhio = occhio
        return processo

    def albero(self, processo):
        # It asks for the desktop's own tree when it is imported.
        from albero_wine import AlberoWine
        return AlberoWine(processo)


class Filo:
    """The wire to the eye of one program: a line out, a line back."""

    ATTESA = 60

    def __init__(self, occhio):
        self._occhio = occhio
        self._canale = None

    def chiedi(self, domanda):
        """What the eye answers; None where the program is not, or no longer, there to answer."""
        try:
            if self._canale is None:
                self._occhio.settimeout(self.ATTESA)
                self._canale = self._occhio.accept()[0].makefile("rw", encoding="utf-8", newline="\n")
            self._canale.write(domanda + "\n")
            self._canale.flush()
            riga = self._canale.readline()
            return json.loads(riga) if riga else None
        except (OSError, ValueError):
            return None
