#!/usr/bin/python3
"""Installs the package in a clean tree and uses the program there, as somebody who may not write it.

    collaudo.py <package> <folder for the pictures>

Where root can make a fresh Debian (debootstrap) the package is installed in one, with what it
depends on and nothing else, and removed at the end; elsewhere it is laid out in a plain folder.
A case is solved, the language changed, the program started again in it, the manual opened.
"""

import os
import shutil
import signal
import subprocess
import sys
import tempfile

from giocatore import AVVIO, BOTTONE, VOCE, Errore, Giocatore
from partite import PARTITE
from schermo import ErroreSchermo, Schermo

# Somebody without any right of their own.
NESSUNO = 65534


def esegui(*comando, **opzioni):
    """Runs a command; what it says is shown only when it fails."""
    esito = subprocess.run(comando, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                           stderr=subprocess.STDOUT, text=True, errors="replace", **opzioni)
    if esito.returncode != 0:
        raise Errore(f"{' '.join(comando)} failed:\n{esito.stdout}")
    return esito.stdout


class Albero:
    """A tree of files in which the package is installed."""

    def __init__(self, radice):
        self.radice = radice
        self.casa = "/home/alunno"

    def dentro(self, *parti):
        """The path of a file of the tree, as this process reaches it."""
        return os.path.join(self.radice, *(p.lstrip("/") for p in parti))

    def prepara_casa(self):
        """A home for the one who uses the program; what opens documents there only notes their names."""
        bin_ = self.dentro(self.casa, "bin")
        os.makedirs(bin_)
        apri = os.path.join(bin_, "xdg-open")
        with open(apri, "w", encoding="ascii") as file:
            file.write('#!/bin/sh\necho "$1" >> "$HOME/aperti"\n')
        os.chmod(apri, 0o755)
        if os.geteuid() == 0:
            for cartella, _, file in os.walk(self.dentro(self.casa)):
                for nome in (".", *file):
                    os.chown(os.path.join(cartella, nome), NESSUNO, NESSUNO)


class Debian(Albero):
    """A fresh Debian of its own."""

    def installa(self, pacchetto):
        self._debootstrap()
        shutil.copy(pacchetto, self.dentro("/tmp/somme.deb"))
        ambiente = {**os.environ, "DEBIAN_FRONTEND": "noninteractive", "LC_ALL": "C.UTF-8"}
        esegui("chroot", self.radice, "apt-get", "update", env=ambiente)
        esegui("chroot", self.radice, "apt-get", "install", "-y", "--no-install-recommends",
               "/tmp/somme.deb", env=ambiente)
        # Sockets of the desktop outside have the same path in the tree.
        os.makedirs(self.dentro(os.path.dirname(self.radice)), exist_ok=True)
        os.symlink("/", self.dentro(self.radice))

    def _debootstrap(self):
        """The release and the archive that this machine has its own packages from."""
        fonti = esegui("apt-get", "indextargets", "--format", "$(SITE) $(CODENAME)",
                       "Created-By: Packages", "Origin: Debian", "Component: main")
        with open("/etc/os-release", encoding="utf-8") as file:
            nome = dict(r.strip().split("=", 1) for r in file if "=" in r)["VERSION_CODENAME"]
        sito = next((s for s, n in (r.split() for r in fonti.splitlines()) if n == nome), None)
        if sito is None:
            raise Errore(f"no archive of Debian {nome} is known here")
        esegui("debootstrap", "--variant=minbase", nome, self.radice, sito)
        for cosa in ("sources.list", "sources.list.d", "apt.conf.d", "trusted.gpg.d"):
            da, a = os.path.join("/etc/apt", cosa), self.dentro("/etc/apt", cosa)
            if os.path.isfile(da):
                shutil.copy(da, a)
            elif os.path.isdir(da) and cosa == "trusted.gpg.d":
                shutil.copytree(da, a, dirs_exist_ok=True)

    def comando(self):
        return ["chroot", self.radice, "/usr/bin/somme"]

    def programma(self):
        return "/usr/lib/somme"

    def togli(self):
        esegui("chroot", self.radice, "apt-get", "purge", "-y", "somme")
        resti = [r for r in ("/usr/lib/somme", "/usr/bin/somme", "/usr/share/doc/somme")
                 if os.path.lexists(self.dentro(r))]
        if resti:
            raise Errore(f"removed, the package leaves {' '.join(resti)}")


class Cartella(Albero):
    """A plain folder, on the libraries of this machine."""

    def installa(self, pacchetto):
        esegui("dpkg-deb", "-x", pacchetto, self.radice)
        if os.geteuid() != 0:
            esegui("chmod", "-R", "a-w", self.dentro("/usr"))
        self.casa = self.dentro(self.casa)

    def dentro(self, *parti):
        percorso = os.path.join("/", *parti)
        return percorso if percorso.startswith(self.radice + "/") else super().dentro(*parti)

    def comando(self):
        return [self.dentro("/usr/bin/somme")]

    def programma(self):
        return self.dentro("/usr/lib/somme")

    def togli(self):
        esegui("chmod", "-R", "u+w", self.radice)


def puo_fare_debian():
    return os.geteuid() == 0 and shutil.which("debootstrap") is not None


class Collaudo:
    """The use of the installed program."""

    def __init__(self, schermo, albero, cartella):
        self._schermo = schermo
        self._albero = albero
        self._cartella = cartella

    def avvia(self):
        from albero import Albero as Lettura
        ambiente = {**os.environ, "HOME": self._albero.casa,
                    "PATH": self._albero.casa + "/bin:/usr/sbin:/usr/bin:/bin"}
        for nome in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"):
            ambiente.pop(nome, None)
        processo = self._schermo.avvia(*self._albero.comando(), env=ambiente, cwd="/")
        lettura = Lettura(processo)
        return processo, lettura, Giocatore(self._schermo, lettura, self._cartella)

    @staticmethod
    def chiudi(giocatore, lettura, processo):
        """Once the menu has given the keyboard back: until then the window manager gets no keys."""
        lettura.aspetta("the focus on a button", lambda: any(
            o.ruolo == BOTTONE and o.ha_il_fuoco for o in lettura.visibili()))
        giocatore.chiudi(processo)

    def risolvi_e_cambia_lingua(self):
        processo, lettura, giocatore = self.avvia()
        giocatore.vai(AVVIO)
        PARTITE["numeri"].gioca(giocatore)
        giocatore.premi("Torna al menù principale")
        giocatore.premi("Lingua", VOCE)
        giocatore.premi("English", VOCE)
        lettura.aspetta_oggetto(BOTTONE, "Using bars")
        giocatore.fotografa("lingua")
        self.chiudi(giocatore, lettura, processo)

    def riavvia_nella_lingua(self):
        processo, lettura, giocatore = self.avvia()
        giocatore.premi("Start")
        lettura.aspetta_oggetto(BOTTONE, "Using bars")
        giocatore.fotografa("riavvio")
        self.apri_manuale(giocatore, lettura)
        self.chiudi(giocatore, lettura, processo)

    def apri_manuale(self, giocatore, lettura):
        """What opens documents has been given the manual of the program's folder, a PDF file."""
        giocatore.premi("Information", VOCE)
        giocatore.premi("documentation", VOCE)
        aperti = self._albero.dentro(self._albero.casa, "aperti")
        lettura.aspetta("the manual to be opened", lambda: os.path.exists(aperti))
        with open(aperti, encoding="utf-8") as file:
            manuale = file.read().strip()
        if manuale != os.path.join(self._albero.programma(), "somme.pdf"):
            raise Errore(f"opened in the manual's place: {manuale!r}")
        for nome in ("somme.pdf", "somme-en.pdf"):
            with open(self._albero.dentro(self._albero.programma(), nome), "rb") as file:
                if file.read(5) != b"%PDF-":
                    raise Errore(f"{nome} is no PDF file")
        print(f"The manual was opened: {manuale}")

    def controlla_file(self, prima):
        """The choice lies in the user's own folder, and the program's is as it was installed."""
        scelta = os.path.join(self._albero.dentro(self._albero.casa), ".config/somme/LangSetting.ini")
        with open(scelta, encoding="utf-8") as file:
            if "CurrentLanguage=English" not in file.read():
                raise Errore(f"{scelta} does not name the language chosen")
        if impronta(self._albero.dentro(self._albero.programma())) != prima:
            raise Errore("the folder of the program has changed")
        print("The choice is kept for the user; the program's folder is as it was.")


def impronta(cartella):
    """What tells whether anything in a folder changed."""
    segni = []
    for dove, _, nomi in os.walk(cartella):
        for nome in (".", *nomi):
            stato = os.stat(os.path.join(dove, nome))
            segni.append((dove, nome, stato.st_size, stato.st_mtime_ns))
    return sorted(segni)


def usa(albero, cartella):
    with Schermo() as schermo:
        from albero import TempoScaduto
        collaudo = Collaudo(schermo, albero, cartella)
        try:
            prima = impronta(albero.dentro(albero.programma()))
            collaudo.risolvi_e_cambia_lingua()
            collaudo.riavvia_nella_lingua()
            collaudo.controlla_file(prima)
        except TempoScaduto as errore:
            schermo.fotografa(os.path.join(cartella, "errore.png"))
            raise Errore(str(errore)) from None


def usa_come_nessuno(albero, cartella):
    """In a process of its own that gives up root, all but the right to enter the tree."""
    os.makedirs(cartella, exist_ok=True)
    os.chown(cartella, NESSUNO, NESSUNO)
    comando = ["setpriv", f"--reuid={NESSUNO}", f"--regid={NESSUNO}", "--clear-groups",
               "--inh-caps=+sys_chroot", "--ambient-caps=+sys_chroot",
               sys.executable, os.path.abspath(__file__), "--usa", type(albero).__name__,
               albero.radice, albero.casa, os.path.abspath(cartella)]
    ambiente = {**os.environ, "TMPDIR": albero.dentro("/tmp"), "HOME": albero.dentro(albero.casa)}
    if subprocess.run(comando, env=ambiente, check=False).returncode != 0:
        raise Errore("the installed program did not do what it should")


def collauda(pacchetto, cartella):
    with tempfile.TemporaryDirectory(prefix="collaudo-") as radice:
        radice = os.path.realpath(radice)
        os.chmod(radice, 0o755)
        albero = (Debian if puo_fare_debian() else Cartella)(radice)
        print(f"Installing in {'a fresh Debian' if isinstance(albero, Debian) else 'a folder'}")
        albero.installa(os.path.abspath(pacchetto))
        os.makedirs(albero.dentro("/tmp"), exist_ok=True)
        os.chmod(albero.dentro("/tmp"), 0o1777)
        albero.prepara_casa()
        if os.geteuid() == 0:
            usa_come_nessuno(albero, cartella)
        else:
            usa(albero, cartella)
        albero.togli()


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    sys.stdout.reconfigure(line_buffering=True)
    try:
        if sys.argv[1:2] == ["--usa"]:
            tipo, radice, casa, cartella = sys.argv[2:]
            albero = {"Debian": Debian, "Cartella": Cartella}[tipo](radice)
            albero.casa = casa
            usa(albero, cartella)
        elif len(sys.argv) == 3:
            collauda(*sys.argv[1:])
            print("The package installs, works and goes.")
        else:
            print(__doc__, file=sys.stderr)
            return 2
    except (Errore, ErroreSchermo) as errore:
        print(f"Failed: {errore}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
