"""The blocks, each form by its own kind of input: a wrong board, then a whole sum with its carries."""

import re

import dita
from giocatore import BOTTONE, ETICHETTA, SCANSIONE, TESTO, TOCCO
from luce import Luce

MENU = "Piatti, lunghi, unità"
# Levels on which no board stays empty, and all carries come.
ENTRO_99, ENTRO_999 = "con il cambio", "con due cambi"
# The kinds of blocks, by the place of their digit.
SPECIE = {1: "u", 10: "da", 100: "h"}
CONFERMA, AVANTI = "Conferma", "Avanti"
CAMBI = {1: "Cambia dieci unità in una decina", 10: "Cambia dieci decine in un centinaio"}
# What stands on keys of the sheet that bear another name on the screen.
SEGNI = {CONFERMA: dita.CONFERMA, CAMBI[10]: dita.DA_IN_H, CAMBI[1]: dita.U_IN_DA,
         AVANTI: dita.AVANTI}


# The kinds in words: one, and more of them.
PAROLE = {100: ("centinaio", "centinaia"), 10: ("decina", "decine"), 1: ("unità", "unità")}


def cifra(numero, posto):
    return numero // posto % 10


def in_parole(blocchi):
    """blocchi: how many of each kind, by the place of its digit."""
    return ", ".join(f"{blocchi[p]} {PAROLE[p][blocchi[p] > 1]}" for p in PAROLE if blocchi.get(p))


class Gioco:
    """One sum on a blocks form.

    scegli: presses what bears a name, as the form is worked. cambia: the same for a carry, once
    its button is there.
    """

    def __init__(self, giocatore, posti, scegli, cambia):
        self.giocatore, self.albero = giocatore, giocatore.albero
        self.posti, self.scegli, self.cambia = posti, scegli, cambia

    def chiesta(self):
        a, b, _ = self.giocatore.chiesta()
        return int(a), int(b)

    def costruisci(self, numero):
        su = {}
        for posto in self.posti:
            for _ in range(cifra(numero, posto)):
                self.scegli(SPECIE[posto])
                su[posto] = su.get(posto, 0) + 1
                self.giocatore.si_dice("board", in_parole(su))
        self.scegli(CONFERMA)

    def unisci(self):
        """A wrong board, both right ones, the carries. Returns the sum."""
        a, b = self.chiesta()
        self.giocatore.fotografa("domanda")
        self.giocatore.rispondi("an empty board", lambda _: self.scegli(CONFERMA), giusto=False)
        self.costruisci(a)
        self.giocatore.fotografa("secondo-addendo")
        self.costruisci(b)
        uniti = {p: cifra(a, p) + cifra(b, p) for p in self.posti}
        self.giocatore.si_dice("board", in_parole(uniti))
        for posto in sorted(set(self.posti) & set(CAMBI)):
            if posto * 10 in self.posti and cifra(a, posto) + cifra(b, posto) >= 10:
                self.albero.aspetta_oggetto(BOTTONE, CAMBI[posto])
                self.giocatore.fotografa("cambio")
                self.giocatore.si_dice("carry", CAMBI[posto])
                self.cambia(CAMBI[posto])
                uniti[posto] -= 10
                uniti[posto * 10] += 1
                self.giocatore.si_dice("carry", in_parole(uniti))
                self.albero.aspetta("the carry's button to go",
                                    lambda p=posto: not self.albero.cerca(BOTTONE, CAMBI[p]))
                print(f"Carried:  {CAMBI[posto]}")
        return a + b

    def risolta(self, totale):
        """The operation stands whole, and the sum counts once."""
        self.albero.aspetta("the whole operation", lambda: any(
            re.search(rf"= +{totale}$", o.nome) for o in self.giocatore.etichette()))
        self.giocatore.contano(1, 1)
        print(f"Solved:   {totale}")
        self.giocatore.fotografa("giusto")


def col_mouse(giocatore, forma, posti, strada):
    gioco = Gioco(giocatore, posti, giocatore.premi, giocatore.premi)
    giocatore.apri(forma, MENU, strada)
    totale = gioco.unisci()
    giocatore.albero.aspetta("the box for the result",
                             lambda: any(o.ruolo == TESTO and o.ha_il_fuoco
                                         for o in giocatore.albero.visibili()))
    giocatore.batti_numero(totale)
    gioco.risolta(totale)
    giocatore.avanti("space")
    gioco.chiesta()
    giocatore.esci(ENTRO_99)


def con_due_tasti(giocatore, forma, posti, strada):
    luce = Luce(giocatore)

    def cambia(nome):
        giocatore.premi_col_fuoco(nome, "space")

    def scegli(nome):
        giocatore.albero.aspetta("a light", luce.acceso)
        luce.scegli_a_mano(nome)

    gioco = Gioco(giocatore, posti, scegli, cambia)
    giocatore.apri(forma, MENU, strada, modo=SCANSIONE)
    totale = gioco.unisci()
    giocatore.albero.aspetta("the light on '0'", lambda: luce.acceso() == "0")
    giocatore.fotografa("risultato")
    for numero in str(totale):
        scegli(numero)
    scegli(CONFERMA)
    gioco.risolta(totale)
    giocatore.albero.aspetta("the light on the way on", lambda: luce.acceso() == AVANTI)
    luce.usa()
    gioco.chiesta()
    giocatore.esci(ENTRO_99)


def a_tocchi(giocatore, forma, posti, strada):
    tocca = dita.Dita(giocatore).tocca

    def scegli(nome):
        tocca(SEGNI.get(nome, nome))

    gioco = Gioco(giocatore, posti, scegli, scegli)
    giocatore.apri(forma, MENU, strada, modo=TOCCO)
    giocatore.tavoletta.fai("foglio blocchi")
    giocatore.collega()
    totale = gioco.unisci()
    gioco.risolta(totale)
    giocatore.albero.aspetta_oggetto(ETICHETTA, str(totale))
    scegli(AVANTI)
    gioco.chiesta()
    giocatore.esci(ENTRO_99)


def blocchi(giocatore):
    """Longs and units, with the mouse."""
    col_mouse(giocatore, "FormLU", (10, 1), ENTRO_99)


def centinaia(giocatore):
    """Flats, longs and units, with the mouse."""
    col_mouse(giocatore, "FormHLU", (100, 10, 1), ENTRO_999)


def blocchi_scansione(giocatore):
    """Longs and units, by manual scanning."""
    con_due_tasti(giocatore, "FormLUScansione", (10, 1), ENTRO_99)


def centinaia_scansione(giocatore):
    """Flats, longs and units, by manual scanning."""
    con_due_tasti(giocatore, "FormHLUScansione", (100, 10, 1), ENTRO_999)


def blocchi_tocco(giocatore):
    """Longs and units, by touch."""
    a_tocchi(giocatore, "FormLUHK", (10, 1), ENTRO_99)


def centinaia_tocco(giocatore):
    """Flats, longs and units, by touch."""
    a_tocchi(giocatore, "FormHLUHK", (100, 10, 1), ENTRO_999)
