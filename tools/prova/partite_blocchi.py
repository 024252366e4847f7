"""The blocks, each form by its own kind of input: a wrong board, then a whole sum with its carries."""

import re
import time

from giocatore import BOTTONE, ETICHETTA, TESTO, VOCE, Errore
from luce import Luce

MENU = "Piatti, lunghi, unità"
# Levels on which no board stays empty, and all carries come.
ENTRO_99, ENTRO_999 = "con il cambio", "con due cambi"
# The kinds of blocks, by the place of their digit.
SPECIE = {1: "u", 10: "da", 100: "h"}
CONFERMA, AVANTI = "Conferma", "Avanti"
CAMBI = {1: "Cambia dieci unità in una decina", 10: "Cambia dieci decine in un centinaio"}
# Keys of the touch surface.
TASTI = {"h": 1, "da": 2, "u": 3, CONFERMA: 8, CAMBI[10]: 5, CAMBI[1]: 6, AVANTI: 9}
# Seconds between two touches.
PAUSA_DITO = 0.3


def cifra(numero, posto):
    return numero // posto % 10


class Gioco:
    """One sum on a blocks form.

    scegli: presses what bears a name, as the form is worked. cambia: the same for a carry, once
    its button is there.
    """

    def __init__(self, giocatore, posti, scegli, cambia):
        self.giocatore, self.albero = giocatore, giocatore.albero
        self.posti, self.scegli, self.cambia = posti, scegli, cambia

    def operazione(self):
        for etichetta in self.giocatore.etichette():
            trovato = re.search(r"(\d+) *\+ *(\d+) *= *$", etichetta.nome)
            if trovato:
                return [int(n) for n in trovato.groups()]
        return None

    def chiesta(self):
        return self.albero.aspetta("a sum to be built", self.operazione)

    def costruisci(self, numero):
        for posto in self.posti:
            for _ in range(cifra(numero, posto)):
                self.scegli(SPECIE[posto])
        self.scegli(CONFERMA)

    def unisci(self):
        """A wrong board, both right ones, the carries. Returns the sum."""
        a, b = self.chiesta()
        print(f"Asked:    {a} + {b} = ?")
        self.giocatore.fotografa("domanda")
        self.giocatore.rispondi("an empty board", lambda _: self.scegli(CONFERMA), giusto=False)
        self.costruisci(a)
        self.giocatore.fotografa("secondo-addendo")
        self.costruisci(b)
        for posto in sorted(set(self.posti) & set(CAMBI)):
            if posto * 10 in self.posti and cifra(a, posto) + cifra(b, posto) >= 10:
                bottone = self.albero.aspetta_oggetto(BOTTONE, CAMBI[posto])
                self.giocatore.fotografa("cambio")
                self.cambia(bottone)
                self.albero.aspetta("the carry's button to go",
                                    lambda p=posto: not self.albero.cerca(BOTTONE, CAMBI[p]))
                print(f"Carried:  {CAMBI[posto]}")
        return a + b

    def risolta(self, totale):
        """The operation stands whole, and the sum counts once."""
        self.albero.aspetta("the whole operation", lambda: any(
            re.search(rf"= +{totale}$", o.nome) for o in self.giocatore.etichette()))
        if (self.giocatore.conta("Esatti"), self.giocatore.conta("Errati")) != (1, 1):
            raise Errore("the counters do not tell one right and one wrong answer")
        print(f"Solved:   {totale}")
        self.giocatore.fotografa("giusto")

    def torna(self):
        self.giocatore.premi("Esci", VOCE)
        self.albero.aspetta_oggetto(BOTTONE, ENTRO_99)


def apri(giocatore, strada):
    giocatore.vai(MENU)
    giocatore.vai(strada)


def col_mouse(giocatore, posti, strada):
    gioco = Gioco(giocatore, posti, giocatore.premi,
                  lambda bottone: giocatore.mani.clicca(bottone.posto))
    giocatore.segui([MENU, strada])
    totale = gioco.unisci()
    giocatore.albero.aspetta("the box for the result",
                             lambda: any(o.ruolo == TESTO and o.ha_il_fuoco
                                         for o in giocatore.albero.visibili()))
    for numero in str(totale):
        giocatore.mani.batti(numero)
    giocatore.mani.batti("Return")
    gioco.risolta(totale)
    giocatore.avanti("space")
    gioco.chiesta()
    gioco.torna()


def con_due_tasti(giocatore, posti, strada):
    luce = Luce(giocatore)

    def cambia(bottone):
        giocatore.albero.aspetta("the focus on the carry", lambda: bottone.ha_il_fuoco)
        giocatore.mani.batti("space")

    def scegli(nome):
        giocatore.albero.aspetta("a light", luce.acceso)
        luce.scegli_a_mano(nome)

    gioco = Gioco(giocatore, posti, scegli, cambia)
    giocatore.segui([])
    giocatore.albero.aspetta_oggetto(BOTTONE, MENU)
    giocatore.mani.batti("ctrl+m")
    apri(giocatore, strada)
    totale = gioco.unisci()
    giocatore.albero.aspetta("the light on '0'", lambda: luce.acceso() == "0")
    giocatore.fotografa("risultato")
    for numero in str(totale):
        scegli(numero)
    scegli(CONFERMA)
    gioco.risolta(totale)
    giocatore.albero.aspetta("the light on the way on", lambda: luce.acceso() == AVANTI)
    giocatore.mani.batti("Return")
    gioco.chiesta()
    gioco.torna()


def a_tocchi(giocatore, posti, strada):
    tavoletta = giocatore.tavoletta

    def scegli(nome):
        # One touch after the other, as a hand is: two that come together are one.
        time.sleep(PAUSA_DITO)
        tavoletta.fai(f"tasto {TASTI[nome]}")
        tavoletta.aspetta("mandato")

    gioco = Gioco(giocatore, posti, scegli, lambda bottone: scegli(bottone.nome))
    giocatore.segui([])
    giocatore.albero.aspetta_oggetto(BOTTONE, MENU)
    giocatore.mani.batti("ctrl+h")
    apri(giocatore, strada)
    giocatore.albero.aspetta_oggetto(BOTTONE, "OK")
    giocatore.premi("OK")
    tavoletta.fai("foglio blocchi")
    totale = gioco.unisci()
    gioco.risolta(totale)
    for posto in posti:
        if totale >= posto:
            giocatore.albero.aspetta_oggetto(ETICHETTA, str(cifra(totale, posto)))
    scegli(AVANTI)
    gioco.chiesta()
    gioco.torna()
    tavoletta.aspetta("ricevuto 02#REQ-DEFAULT")


def blocchi(giocatore):
    """Longs and units, with the mouse."""
    col_mouse(giocatore, (10, 1), ENTRO_99)


def centinaia(giocatore):
    """Flats, longs and units, with the mouse."""
    col_mouse(giocatore, (100, 10, 1), ENTRO_999)


def blocchi_scansione(giocatore):
    """Longs and units, by manual scanning."""
    con_due_tasti(giocatore, (10, 1), ENTRO_99)


def centinaia_scansione(giocatore):
    """Flats, longs and units, by manual scanning."""
    con_due_tasti(giocatore, (100, 10, 1), ENTRO_999)


def blocchi_tocco(giocatore):
    """Longs and units, by touch."""
    a_tocchi(giocatore, (10, 1), ENTRO_99)


def centinaia_tocco(giocatore):
    """Flats, longs and units, by touch."""
    a_tocchi(giocatore, (100, 10, 1), ENTRO_999)
