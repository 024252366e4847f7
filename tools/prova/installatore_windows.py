"""Installs, uses and removes the program as its installer for Windows does, under Wine."""

import os
import subprocess
import time

from giocatore import AVVIO, Errore, Giocatore
from schermo_wine import Finestre, SchermoWine

# What Wine writes by itself: the folder of a user's own programs among it, when somebody asks where it is.
DI_WINE = (".reg", "/temp/", "/Temp/")
DI_WINE_SOLA = "/AppData/Local/Programs"
# The languages of the installer, each with a country that speaks it.
PAESI = ("it_IT", "en_GB", "fr_FR", "de_DE", "es_ES")


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
    for paese in PAESI:
        _pagine(installatore, paese, foto)


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


class Pagine:
    """The pages of the installer, each photographed as it comes."""

    def __init__(self, schermo, cartella):
        self._schermo, self._cartella = schermo, cartella
        self.guarda()

    def guarda(self):
        """What is on the screen now belongs to no page that is still to come."""
        self._prima = self._schermo.vista()

    def fotografa(self, nome, riposo=1.3):
        """What is on the screen, once it is another than it was, and the same for so many seconds."""
        fine = time.monotonic() + 180
        while time.monotonic() < fine:
            vista = self._schermo.vista()
            time.sleep(riposo)
            if vista != self._prima and (not riposo or vista == self._schermo.vista()):
                self._schermo.fotografa(os.path.join(self._cartella, nome + ".png"))
                self.guarda()
                return
        raise Errore(f"the page {nome} does not come")


def _pagine(installatore, paese, foto):
    """Every page in one language, to be looked at: nothing of it may be cut."""
    foto = os.path.join(foto, "installatore", paese)
    with SchermoWine(finestre=Finestre(paese=paese)) as schermo:
        pagine = Pagine(schermo, foto)
        schermo.avvia(installatore)
        pagine.fotografa("chi")
        _batti("Return")
        pagine.fotografa("dove")
        _batti("Return")
        pagine.fotografa("posa", riposo=0)
        pagine.fotografa("fatto")
        # What runs is not removed, and that it runs is said.
        dove = os.path.join(schermo.finestre.radice, "drive_c", "Program Files", "somme")
        processo = schermo.avvia(os.path.join(dove, "somme.exe"), cwd="/")
        albero = schermo.albero(processo)
        Giocatore(schermo, albero, foto).vai(AVVIO)
        albero.aspetta_oggetto("push button", "Uso delle barre")
        time.sleep(2)
        pagine.guarda()
        schermo.avvia(os.path.join(dove, "disinstalla.exe"), "/AllUsers")
        pagine.fotografa("togli")
        _batti("Return")
        pagine.fotografa("aperto")
        processo.termina()
        pagine.guarda()
        _batti("Return")
        pagine.fotografa("tolto")
        _batti("Return")
    print(f"{paese}: each page of the installer photographed")


def _batti(tasto):
    subprocess.run(["xdotool", "key", tasto], check=True, timeout=30)
