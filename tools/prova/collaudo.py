#!/usr/bin/python3
"""Installs the package in a clean tree and uses the program there, as somebody who may not write it.

    collaudo.py <package or archive> <folder for the pictures>

Where a fresh Debian can be made (root, debootstrap, an archive that answers) the package is
installed in one, with what it depends on and nothing else, and removed at the end; elsewhere it is
laid out in a plain folder. A package for another of Debian's architectures goes into a Debian of that,
whose programs must run here (see emulazione.py); an archive is unpacked in one without Qt. Its program
must be hardened. A case is solved, the language changed, the program started again in it, the manual
opened.
"""

import functools
import os
import shutil
import signal
import subprocess
import sys
import tempfile

import difese
from giocatore import AVVIO, BOTTONE, VOCE, Errore, Giocatore
from impronta import impronta
from installazione import NESSUNO, Cartella, Debian, Portatile, SenzaDebian, esegui
from partite import PARTITE
from schermo import ErroreSchermo, Schermo


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
        giocatore.vai("Torna al menù principale")
        lettura.aspetta_oggetto(BOTTONE, "Uso delle barre")
        giocatore.premi("Lingua", VOCE)
        giocatore.premi("English", VOCE)
        lettura.aspetta_oggetto(BOTTONE, "Using bars")
        giocatore.fotografa("lingua")
        self.chiudi(giocatore, lettura, processo)

    def riavvia_nella_lingua(self):
        processo, lettura, giocatore = self.avvia()
        giocatore.vai("Start")
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
        for nome in ("somme.pdf", *(f"somme-{lingua}.pdf" for lingua in ("en", "fr", "de", "es"))):
            with open(self._albero.dentro(self._albero.programma(), nome), "rb") as file:
                if file.read(5) != b"%PDF-":
                    raise Errore(f"{nome} is no PDF file")
        imposto = self._albero.dentro(self._albero.casa, "imposto")
        with open(imposto, encoding="utf-8") as file:
            if detto := file.read():
                raise Errore(f"what opens documents was told more than it should be: {detto}")
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
    """In a process of its own that gives up root, all but the right to enter the tree.

    Folders outside of the tree may be closed to it: the scripts go into the tree, and the pictures
    come from there.
    """
    qui = albero.dentro("/tmp/prova")
    foto = albero.dentro("/tmp/foto")
    shutil.copytree(os.path.dirname(os.path.abspath(__file__)), qui)
    os.mkdir(foto)
    os.chown(foto, NESSUNO, NESSUNO)
    comando = ["setpriv", f"--reuid={NESSUNO}", f"--regid={NESSUNO}", "--clear-groups",
               *albero.diritti, sys.executable, os.path.join(qui, os.path.basename(__file__)),
               "--usa", type(albero).__name__, albero.radice, albero.casa, foto]
    ambiente = {**os.environ, "TMPDIR": albero.dentro("/tmp"), "HOME": albero.dentro(albero.casa)}
    esito = subprocess.run(albero.con_cio_che_serve(*comando), env=ambiente, cwd=albero.radice, check=False)
    shutil.copytree(foto, cartella, dirs_exist_ok=True)
    if esito.returncode != 0:
        raise Errore("the installed program did not do what it should")


def controlla_difese(albero):
    """The program was hardened as Debian's own are."""
    mancano = difese.mancano(albero.dentro(albero.programma(), "somme"))
    if mancano:
        raise Errore("the program is not hardened: " + "; ".join(mancano))
    print("The program is hardened.")


def usa_installato(albero, cartella):
    controlla_difese(albero)
    albero.prepara_casa()
    if os.geteuid() == 0:
        usa_come_nessuno(albero, cartella)
    else:
        usa(albero, cartella)
    albero.togli()


def alberi(pacchetto):
    """What the trees are made by that the package may go into, the best first."""
    if pacchetto.endswith(".tar.xz"):
        return [Portatile]
    sua = esegui("dpkg-deb", "--field", pacchetto, "Architecture").strip()
    if sua != esegui("dpkg", "--print-architecture").strip():
        return [functools.partial(Debian, architettura=sua)]
    return [Debian, Cartella]


def collauda(pacchetto, cartella):
    pacchetto = os.path.abspath(pacchetto)
    tipi = alberi(pacchetto)
    for tipo in tipi:
        with tempfile.TemporaryDirectory(prefix="collaudo-") as radice:
            os.chmod(radice, 0o755)
            albero = tipo(os.path.realpath(radice))
            try:
                print(f"Installing in {'a plain folder' if tipo is Cartella else 'a fresh Debian'}")
                albero.installa(pacchetto)
            except SenzaDebian as perche:
                if tipo is tipi[-1]:
                    raise Errore(f"no fresh Debian can be made here: {perche}") from None
                print("No fresh Debian can be made here; the package goes into a plain folder, on the"
                      f" libraries of this machine: {perche}")
                continue
            usa_installato(albero, cartella)
            return


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    sys.stdout.reconfigure(line_buffering=True)
    try:
        if sys.argv[1:2] == ["--usa"]:
            tipo, radice, casa, cartella = sys.argv[2:]
            albero = {t.__name__: t for t in (Debian, Portatile, Cartella)}[tipo](radice)
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
