"""Installs, uses and removes the program as its installer for Windows does, under Wine."""

import os
import subprocess
import time

from giocatore import AVVIO, Errore, Giocatore
from schermo_wine import SchermoWine

# What Wine writes by itself: the folder of a user's own programs among it, when somebody asks where it is.
DI_WINE = (".reg", "/temp/", "/Temp/")
DI_WINE_SOLA = "/AppData/Local/Programs"


class Disco:
    """What lies on Wine's disk and in its registry."""

    def __init__(self, finestre):
        self._finestre = finestre
        self._radice = os.path.join(finestre.radice, "drive_c")

    def file(self):
        return {os.path.join(dove, nome) for dove, cartelle, nomi in os.walk(self._radice)
                for nome in (*cartelle, *nomi)
                if not any(d in os.path.join(dove, nome) for d in DI_WINE)
                and not os.path.join(dove, nome).endswith(DI_WINE_SOLA)}

    def registro(self, dove):
        """The values of the key under which Windows lists the program; empty where there is none."""
        chiave = dove + r"\Software\Microsoft\Windows\CurrentVersion\Uninstall\somme"
        detto = self._finestre.esegui("wine", "reg", "query", chiave, check=False, stdout=subprocess.PIPE,
                                      stderr=subprocess.DEVNULL)
        return detto.stdout.decode("utf-8", "replace") if detto.returncode == 0 else ""


def prova_installatore(installatore, foto):
    with SchermoWine() as schermo:
        for modo, dove in (("/AllUsers", "HKLM"), ("/CurrentUser", "HKCU")):
            _installa_e_togli(schermo, installatore, modo, dove, foto)
        _pagine(schermo, installatore, foto)


def _installa_e_togli(schermo, installatore, modo, dove, foto):
    finestre = schermo.finestre
    disco = Disco(finestre)
    prima = disco.file()
    finestre.esegui(installatore, "/S", modo)
    posti = disco.file() - prima
    programma = next((p for p in posti if p.endswith("/somme.exe")), None)
    if programma is None or not disco.registro(dove):
        raise Errore(f"{modo}: the program is not installed")
    if not any(p.endswith("Esercitazioni sulle somme.lnk") and "Start Menu" in p for p in posti):
        raise Errore(f"{modo}: nothing stands in the start menu")
    print(f"{modo}: installed in {os.path.dirname(programma)}")
    processo = schermo.avvia(programma, cwd="/")
    albero = schermo.albero(processo)
    giocatore = Giocatore(schermo, albero, foto)
    albero.aspetta_oggetto("push button", AVVIO, 60)
    via = os.path.join(os.path.dirname(programma), "disinstalla.exe")
    finestre.esegui(via, "/S", modo, check=False)
    time.sleep(5)  # the copy that removes the program goes on by itself
    if not os.path.exists(programma):
        raise Errore(f"{modo}: a program that runs was removed")
    giocatore.vai(AVVIO)
    giocatore.chiudi(processo)
    finestre.esegui(via, "/S", modo)
    fine = time.monotonic() + 60
    while disco.file() - prima and time.monotonic() < fine:
        time.sleep(0.5)
    resti = disco.file() - prima
    if resti or disco.registro(dove):
        raise Errore(f"{modo}: what is left after removal: {sorted(resti)} {disco.registro(dove)}")
    print(f"{modo}: removed, without remains")


def _pagine(schermo, installatore, foto):
    """The first page, to be looked at."""
    processo = schermo.avvia(installatore)
    subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", "Esercitazioni sulle somme"],
                   check=True, timeout=60, stdout=subprocess.DEVNULL)
    time.sleep(2)
    schermo.fotografa(os.path.join(foto, "installatore.png"))
    processo.termina()
