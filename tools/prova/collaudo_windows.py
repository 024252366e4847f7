#!/usr/bin/python3
"""Uses what a school with Windows gets, under Wine.

    collaudo_windows.py <zip> <installer> <folder for the pictures> [<part> ...]

The zip is unpacked into a folder of a name with blanks, accents and another script, which nothing may be
written to while it is used. The parts are: misura, uso, stampa, manca, installa, avvio; without one all of
them.
"""

import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import zipfile

from coda_di_stampa import CodaDiStampa, inchiostro
from giocatore import Errore
from installatore_windows import prova_installatore
from schermo import ErroreSchermo
from schermo_wine import COSTRUITO, DEV, SchermoWine
from tavoletta import ErroreTavoletta
from uso_windows import Prova

CARTELLA = "Scuola elementare, perché no 学校"
PESO = 40 * 1024 * 1024  # bytes without the manuals


class Cartella:
    """The zip, unpacked where nothing may be written to."""

    def __init__(self, archivio, radice):
        self.programma = os.path.join(radice, CARTELLA, "somme", "somme.exe")
        self._dove = os.path.join(radice, CARTELLA)
        with zipfile.ZipFile(archivio) as zip_:
            zip_.extractall(self._dove)
        self._chiusa = False

    def misura(self):
        pesi = [(nome, os.path.getsize(nome)) for dove, _, nomi in os.walk(self._dove)
                for nome in (os.path.join(dove, n) for n in nomi)]
        senza = sum(peso for nome, peso in pesi if not nome.endswith(".pdf"))
        print(f"Unpacked: {sum(p for _, p in pesi) / 2**20:.1f} MiB, {senza / 2**20:.1f} without the manuals")
        if senza > PESO:
            raise Errore("that is more than 40 MiB without the manuals")

    def __enter__(self):
        """Root writes wherever it likes, but not on a disk that takes nothing."""
        if os.geteuid() == 0:
            for comando in (["--bind", self._dove, self._dove], ["-o", "remount,bind,ro", self._dove]):
                subprocess.run(["mount", *comando], check=True)
            self._chiusa = True
        else:
            for dove, _, _ in os.walk(self._dove):
                os.chmod(dove, 0o555)
        return self

    def __exit__(self, *errore):
        if self._chiusa:
            subprocess.run(["umount", "--lazy", self._dove], check=True)
            self._chiusa = False
            return
        for dove, _, _ in os.walk(self._dove):
            os.chmod(dove, 0o755)


def prova_uso(archivio, _, foto, radice):
    cartella = Cartella(archivio, radice)
    with cartella, SchermoWine() as schermo:
        # What opens documents copies the one that it is given.
        for chiave, valore in ((r"\.pdf", "prova"), (r"\prova\shell\open\command",
                                                    r'cmd.exe /c copy "%1" C:\aperto')):
            schermo.finestre.esegui("wine", "reg", "add", r"HKLM\Software\Classes" + chiave, "/ve", "/f", "/d",
                                    valore, stdout=subprocess.DEVNULL)
        scelta = schermo.finestre.utente("AppData", "Local", "somme")
        shutil.rmtree(scelta, ignore_errors=True)
        Prova(schermo, cartella.programma, foto).usa()


def prova_misura(archivio, _, __, radice):
    Cartella(archivio, radice).misura()


def prova_stampa(archivio, _, foto, radice):
    """To the built-in printer, then to one of the system: the same sheets, true to size."""
    cartella = Cartella(archivio, radice)
    fatti = {}

    def in_un_file(schermo):
        documenti = schermo.finestre.utente("Documents")
        shutil.rmtree(documenti, ignore_errors=True)
        os.makedirs(documenti)
        visti = set()

        def dopo(che_cosa):
            def nuovi():
                return [n for n in os.listdir(documenti) if n.endswith(".pdf") and n not in visti]
            aspetta_file(f"the PDF of {che_cosa}", nuovi)
            nome = nuovi()[0]
            visti.add(nome)
            fatti["pdf", che_cosa] = os.path.join(foto, che_cosa + ".pdf")
            shutil.copy(os.path.join(documenti, nome), fatti["pdf", che_cosa])
        return dopo

    with SchermoWine() as schermo:
        Prova(schermo, cartella.programma, foto).stampa(in_un_file(schermo))
    with CodaDiStampa() as coda, SchermoWine() as schermo:
        def dopo(che_cosa):
            fatti["coda", che_cosa] = coda.prendi(os.path.join(foto, che_cosa + ".ps"))
        Prova(schermo, cartella.programma, foto).stampa(dopo)
    for che_cosa in ("elenco", "foglio"):
        confronta(che_cosa, fatti["pdf", che_cosa], fatti["coda", che_cosa])


def confronta(che_cosa, pdf, coda):
    """What both print has the same size, to a millimetre."""
    misure = [inchiostro(file) for file in (pdf, coda)]
    for dove, (corto, lungo) in zip(("PDF", "printer"), misure):
        print(f"{che_cosa}, {dove}: {corto:.1f} by {lungo:.1f} mm of ink")
    if max(abs(a - b) for a, b in zip(*misure)) > 1:
        raise Errore(f"{che_cosa} is not of the same size on the printer as in the PDF file")


def aspetta_file(che_cosa, vero, secondi=60):
    fine = time.monotonic() + secondi
    while not vero():
        if time.monotonic() > fine:
            raise Errore(f"{che_cosa} does not come")
        time.sleep(0.2)


def prova_manca(archivio, _, foto, radice):
    """Without a part of its own the program says which; of its libraries Windows does."""
    cartella = Cartella(archivio, radice)
    dove = os.path.dirname(cartella.programma)
    with SchermoWine() as schermo:
        os.remove(os.path.join(dove, "platforms", "qwindows.dll"))
        processo = schermo.avvia(cartella.programma)
        subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", "^Error"], check=True,
                       timeout=60, stdout=subprocess.DEVNULL)
        schermo.fotografa(os.path.join(foto, "manca.png"))
        subprocess.run(["xdotool", "key", "Return"], check=True, timeout=30)
        if processo.wait(20) != 1:
            raise Errore(f"without a part it ends with {processo.returncode}")
        libreria = "Qt6Gui.dll"
        os.remove(os.path.join(dove, libreria))
        detto = schermo.finestre.esegui(cartella.programma, check=False, stderr=subprocess.PIPE, text=True,
                                        parla="err+module").stderr
        if libreria not in detto:
            raise Errore(f"nothing names {libreria}: {detto!r}")
    print("A part that is missing is named.")


def prova_installa(_, installatore, foto, __):
    prova_installatore(installatore, foto)


def prova_avvio(archivio, _, __, radice):
    """Bench: from exec to the first picture, against an empty program of Qt's made in the same way."""
    cartella = Cartella(archivio, radice)
    dove = os.path.dirname(cartella.programma)
    shutil.copy(os.path.join(COSTRUITO, "prova", "vuoto.exe"), dove)
    misura = os.path.join(DEV, "bench/bench_avvio")
    with SchermoWine() as schermo:
        lanci = []
        for nome in ("somme.exe", "vuoto.exe"):
            lancio = os.path.join(radice, nome + ".sh")
            with open(lancio, "w", encoding="utf-8") as file:
                file.write(f'#!/bin/sh\nexec wine "{dove}/{nome}"\n')
            os.chmod(lancio, 0o755)
            lanci.append(lancio)
        # Something that stays, so that Wine's server and desktop are there for every start.
        schermo.avvia("wine", "notepad.exe", env=schermo.finestre.ambiente())
        detto = subprocess.run([misura, *lanci], env=schermo.finestre.ambiente(), check=False,
                               stdout=subprocess.PIPE, text=True, timeout=900).stdout
    print(detto, end="")
    trovato = re.search(r"first picture: (\d+) ms, empty program (\d+) ms", detto)
    if not trovato:
        raise Errore("the start was not measured")
    volte = int(trovato[1]) / int(trovato[2])
    print(f"First picture: {volte:.2f} times an empty program's, at most 3")
    if volte > 3:
        raise Errore("the first picture comes too late")


PARTI = {"misura": prova_misura, "uso": prova_uso, "stampa": prova_stampa, "manca": prova_manca,
         "installa": prova_installa, "avvio": prova_avvio}


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    sys.stdout.reconfigure(line_buffering=True)
    if len(sys.argv) < 4 or {*sys.argv[4:]} - {*PARTI}:
        print(__doc__, file=sys.stderr)
        return 2
    archivio, installatore, foto = map(os.path.abspath, sys.argv[1:4])
    os.makedirs(foto, exist_ok=True)
    try:
        for parte in sys.argv[4:] or PARTI:
            print(f"== {parte}")
            with tempfile.TemporaryDirectory(prefix="windows-") as radice:
                PARTI[parte](archivio, installatore, foto, os.path.realpath(radice))
    except (Errore, ErroreSchermo, ErroreTavoletta, subprocess.SubprocessError) as errore:
        print(f"Failed: {errore}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
