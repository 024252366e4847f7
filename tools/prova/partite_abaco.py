"""The abacus, each form by its own kind of input: a carry, a wrong and a right answer, the way on."""

import re
import time

import dita
from giocatore import AVANTI, BOTTONE, SCANSIONE, TOCCO, Errore, trova
from luce import Luce

LIVELLO = "cambio alle unità"  # up to 999; no other level bears this name
FAMIGLIA = "Abaco"


def _sull_abaco(giocatore, che_cosa, detta=True):
    """Waits until the abacus tells assistive technology what it should.

    detta: whether it is spoken, too; the empty abacus of a new case is not.
    """
    trovati = []

    def detto():
        # To look through the whole tree for each bead would take most of the time of a game.
        if not any(o.nome == FAMIGLIA and o.visibile for o in trovati):
            trovati[:] = [o for o in giocatore.albero.visibili() if o.nome == FAMIGLIA]
        return [o.descrizione for o in trovati]
    giocatore.albero.aspetta(f"{che_cosa!r} on the abacus", lambda: che_cosa in detto(), 30)
    print("Abacus:   " + che_cosa)
    if detta:
        giocatore.si_dice("board", che_cosa)


def _premi_palline(giocatore, nome, quante, detto):
    """Has the tree's beads of that name pressed, one after the other, and the abacus tell each."""
    for i in range(quante):
        giocatore.premi(nome)
        _sull_abaco(giocatore, detto(i + 1))


def _tocca_pallina(giocatore, x, y):
    """A click on a place of the abacus, in pixels of its picture, which is 521 by 361.

    The picture stands in the middle of its board, as large as it fits.
    """
    tavola = next(o for o in giocatore.albero.visibili() if o.nome == FAMIGLIA)
    sinistra, alto, larga, alta = tavola.posto
    scala = min(larga / 521, alta / 361)
    giocatore.mani.clicca((round(sinistra + (larga - 521 * scala) / 2 + x * scala),
                           round(alto + (alta - 361 * scala) / 2 + y * scala), 1, 1))


def abaco(giocatore):
    """With the mouse: bead by bead, the arrow that carries, a bead taken away again."""
    albero = giocatore.albero
    giocatore.apri("FormAbaco", FAMIGLIA, LIVELLO)
    risposta = trova(giocatore.chiesta())
    # The units that wait stand in two columns of five, right of the last spike.
    for i in range(10):
        _tocca_pallina(giocatore, 459 + 32 * (i // 5), 303 - 30 * (i % 5))
        _sull_abaco(giocatore, "1 unità" if i == 0 else f"{i + 1} unità")
    giocatore.premi("Cambia 10 unità con 1 decina")
    _sull_abaco(giocatore, "1 decina")
    giocatore.fotografa("cambio")
    _tocca_pallina(giocatore, 288, 303)  # the lowest bead of the tens
    _sull_abaco(giocatore, "vuoto")
    _scrivi(giocatore, risposta)


def abaco_senza_mouse(giocatore):
    """The sum; where the hands can press beads, ten units, which the arrow carries, and none again.

    No key reaches a bead.
    """
    giocatore.apri("FormAbaco", FAMIGLIA, LIVELLO)
    risposta = trova(giocatore.chiesta())
    if giocatore.preme_ogni_cosa:
        _premi_palline(giocatore, "1 unità da mettere", 10, lambda n: f"{n} unità")
        giocatore.premi("Cambia 10 unità con 1 decina")
        _sull_abaco(giocatore, "1 decina")
        _premi_palline(giocatore, "1 decina da togliere", 1, lambda _: "vuoto")
    _scrivi(giocatore, risposta)


def _scrivi(giocatore, risposta):
    giocatore.prova(risposta, giocatore.batti_nella_casella)
    giocatore.avanti("space")
    giocatore.chiesta()
    giocatore.esci(FAMIGLIA)


def abaco_scansione(giocatore):
    """By manual scanning: ten units carry by themselves, the sum is written with the digits."""
    albero = giocatore.albero
    luce = Luce(giocatore)
    acceso, scegli = luce.acceso, luce.scegli_a_mano

    def dai(numero):
        for cifra in str(numero):
            scegli(cifra)
        scegli("Conferma")

    giocatore.apri("FormAbacoScansione", FAMIGLIA, LIVELLO, modo=SCANSIONE)
    a, b, _ = map(int, (t or 0 for t in giocatore.chiesta()))
    albero.aspetta("the light on 'h'", lambda: acceso() == "h")
    for _ in range(10):
        scegli("u")
    time.sleep(1)
    if acceso() is not None:
        raise Errore(f"the keyboard stays through the carry, lit on {acceso()!r}")
    giocatore.fotografa("cambio")
    _sull_abaco(giocatore, "1 decina")
    albero.aspetta("the light on 'h' again", lambda: acceso() == "h")
    scegli("Conferma")
    albero.aspetta("the light on '0'", lambda: acceso() == "0")
    giocatore.rispondi(a, dai, giusto=False)
    giocatore.fotografa("sbagliato")
    scegli("Cancella")
    giocatore.rispondi(a + b, dai, giusto=True)
    albero.aspetta("the light on the way on", lambda: acceso() == "Avanti")
    giocatore.fotografa("giusto")
    luce.usa()
    giocatore.chiesta()
    albero.aspetta("the light on 'h'", lambda: acceso() == "h")
    _sull_abaco(giocatore, "vuoto", detta=False)
    giocatore.esci(FAMIGLIA)


def abaco_tocco(giocatore):
    """By touch: a key carries ten units, and the abacus itself is the answer."""
    albero = giocatore.albero
    tocca = dita.Dita(giocatore).tocca

    def dai(numero):
        tocca(dita.CESTINO)
        for segno, quante in (("h", numero // 100), ("da", numero // 10 % 10), ("u", numero % 10)):
            tocca(segno, quante)
        tocca(dita.CONFERMA)

    giocatore.tavoletta.fai("foglio abaco")
    giocatore.apri("FormAbacoHK", FAMIGLIA, LIVELLO, modo=TOCCO)
    giocatore.collega()
    a, b, _ = map(int, (t or 0 for t in giocatore.chiesta()))
    tocca("u", 10)
    _sull_abaco(giocatore, "10 unità")
    tocca(dita.U_IN_DA)
    tocca("da", 2)  # dropped: a carry goes on
    giocatore.fotografa("cambio")
    _sull_abaco(giocatore, "1 decina")
    giocatore.rispondi(a, dai, giusto=False)
    giocatore.fotografa("sbagliato")
    giocatore.rispondi(a + b, dai, giusto=True)
    # Shown digit by digit, and read as one number.
    numeri = [o.nome for o in giocatore.etichette() if re.fullmatch(r"\d+", o.nome)]
    if numeri != [str(a + b)]:
        raise Errore(f"the digits of the sum are {numeri}")
    giocatore.fotografa("giusto")
    bottone = albero.aspetta_oggetto(BOTTONE, AVANTI)
    albero.aspetta(f"the focus on {AVANTI!r}", lambda: bottone.ha_il_fuoco)
    tocca(dita.AVANTI)
    giocatore.chiesta()
    _sull_abaco(giocatore, "vuoto", detta=False)
    giocatore.esci(FAMIGLIA)
