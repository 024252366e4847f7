"""The shapes that the pictures of levels and of exchanges are put together from.

A shape is a piece of SVG. Lengths are units of the picture's view box, x and y a shape's top left
corner. How pictures are drawn, and why so, stands in immagini/README.md.
"""

CONTORNO = "#18213b"
UNITA, DECINE, CENTINAIA, MIGLIAIA = "#4a97f5", "#ff5a52", "#5ddc5a", "#b57bee"
ARANCIO, GIALLO, CARTA, CARTA_SCURA = "#ffb02e", "#ffd43b", "#d3f6ff", "#8fdcf6"


def n(valore):
    """A number as SVG has it, to the hundredth."""
    return f"{valore:.2f}".rstrip("0").rstrip(".")


def _rettangolo(x, y, largo, alto, raggio, tinta, tratto):
    return (f'<rect x="{n(x)}" y="{n(y)}" width="{n(largo)}" height="{n(alto)}" '
            f'rx="{n(raggio)}" fill="{tinta}" stroke="{CONTORNO}" stroke-width="{n(tratto)}"/>')


def _linee(percorso, tratto, opaco=1.0):
    velo = "" if opaco == 1 else f' stroke-opacity="{n(opaco)}"'
    return (f'<path d="{percorso}" fill="none" stroke="{CONTORNO}"{velo} '
            f'stroke-width="{n(tratto)}"/>')


def _luce(x, y, largo, tratto):
    return (f'<path d="M{n(x)} {n(y)}H{n(x + largo)}" fill="none" stroke="#fff" '
            f'stroke-opacity=".75" stroke-width="{n(tratto)}" stroke-linecap="round"/>')


def cubo(x, y, lato=9.4):
    """A unit."""
    return (_rettangolo(x, y, lato, lato, lato * 0.2, UNITA, 2.3)
            + _luce(x + lato * 0.34, y + lato * 0.34, lato * 0.26, lato * 0.17))


def cubi(x, y, righe, colonne=1):
    """Units in rows and columns."""
    return "".join(cubo(x + 13.6 * c, y + 12.3 * r)
                   for r in range(righe) for c in range(colonne))


def dritto(x, y, alto=56.0, largo=9.0):
    """A long that stands: ten units."""
    passo = alto / 10
    tacche = "".join(f"M{n(x)} {n(y + passo * i)}H{n(x + largo)}" for i in range(1, 10))
    return (_rettangolo(x, y, largo, alto, 2, DECINE, 0) + _linee(tacche, 1.5, 0.75)
            + _luce(x + largo * 0.4, y + passo * 0.55, largo * 0.2, 1.6)
            + _rettangolo(x, y, largo, alto, 2, "none", 2.8))


def steso(x, y, largo=28.0, alto=7.0, tratto=2.2):
    """A long that lies."""
    passo = largo / 10
    tacche = "".join(f"M{n(x + passo * i)} {n(y)}V{n(y + alto)}" for i in range(1, 10))
    return (_rettangolo(x, y, largo, alto, 1.5, DECINE, 0) + _linee(tacche, 0.7, 0.4)
            + _rettangolo(x, y, largo, alto, 1.5, "none", tratto))


def stesi(x, y, righe, colonne=1, largo=16.0, alto=7.0):
    """Longs that lie in rows and columns, each with its outline."""
    return "".join(steso(x + (largo + 4) * c, y + (alto + 4.4) * r, largo, alto)
                   for r in range(righe) for c in range(colonne))


def piatto(x, y, lato=34.0):
    """A flat: ten longs."""
    passo = lato / 10
    rete = "".join(f"M{n(x + passo * i)} {n(y)}V{n(y + lato)}M{n(x)} {n(y + passo * i)}H{n(x + lato)}"
                   for i in range(1, 10))
    return (_rettangolo(x, y, lato, lato, 2, CENTINAIA, 0) + _linee(rete, 0.8, 0.5)
            + _luce(x + lato * 0.12, y + lato * 0.12, lato * 0.25, 2)
            + _rettangolo(x, y, lato, lato, 2, "none", 2.8))


def pallina(x, y, tinta, largo=13.0, alto=9.0, tratto=2.6):
    """A bead of the abacus."""
    return (_rettangolo(x, y, largo, alto, alto / 2, tinta, tratto)
            + _luce(x + largo * 0.32, y + alto * 0.34, largo * 0.22, alto * 0.18))


def palline(x, y, tinta, righe=2, colonne=5, largo=11.5, alto=9.5):
    """Ten beads, in rows."""
    return "".join(pallina(x + (largo + 3) * c, y + (alto + 3) * r, tinta, largo, alto, 2.4)
                   for r in range(righe) for c in range(colonne))


def _sagoma(percorso, tinta, tratto):
    return (f'<path d="{percorso}" fill="{tinta}" stroke="{CONTORNO}" '
            f'stroke-width="{n(tratto)}" stroke-linejoin="round"/>')


def freccia(x, y, largo=18.0, alto=20.0, tratto=2.8):
    """An arrow to the left, as an exchange goes: to the next place."""
    mezzo, punta, gambo = y + alto / 2, alto / 2, alto * 0.2
    return _sagoma(f"M{n(x)} {n(mezzo)}L{n(x + punta)} {n(y)}V{n(mezzo - gambo)}H{n(x + largo)}"
                   f"V{n(mezzo + gambo)}H{n(x + punta)}V{n(y + alto)}Z", ARANCIO, tratto)


def piu(x, y, lato=18.0):
    """A plus."""
    a, b = lato / 3, lato * 2 / 3
    return _sagoma(f"M{n(x + a)} {n(y)}H{n(x + b)}V{n(y + a)}H{n(x + lato)}V{n(y + b)}H{n(x + b)}"
                   f"V{n(y + lato)}H{n(x + a)}V{n(y + b)}H{n(x)}V{n(y + a)}H{n(x + a)}Z",
                   GIALLO, 2.8)


def domanda(x, y, alto=30.0):
    """A question mark."""
    u = alto / 30

    def p(dx, dy):
        return f"{n(x + u * dx)} {n(y + u * dy)}"

    segno = f"M{p(4, 9)}C{p(4, 1.5)} {p(15, 1.5)} {p(15, 8.5)}C{p(15, 14)} {p(9.5, 13)} {p(9.5, 19)}"
    tratto = ('<path d="{}" fill="none" stroke="{}" stroke-width="{}" stroke-linecap="round" '
              'stroke-linejoin="round"/>')
    punto = f'<circle cx="{n(x + u * 9.5)}" cy="{n(y + u * 26)}" r="{n(u * 2.9)}" fill="{GIALLO}" '
    return (tratto.format(segno, CONTORNO, n(u * 8.6)) + tratto.format(segno, GIALLO, n(u * 3.8))
            + punto + f'stroke="{CONTORNO}" stroke-width="{n(u * 2.4)}"/>')


def griglia(x, y, colonne, righe, passo):
    """A piece of the table."""
    largo, alto = colonne * passo, righe * passo
    linee = ("".join(f"M{n(x + passo * i)} {n(y)}V{n(y + alto)}" for i in range(1, colonne))
             + "".join(f"M{n(x)} {n(y + passo * i)}H{n(x + largo)}" for i in range(1, righe)))
    return (_rettangolo(x, y, largo, alto, 3, CARTA, 0) + _linee(linee, 1.5)
            + _rettangolo(x, y, largo, alto, 3, "none", 4.6))


def passi(punti, passo):
    """A way over the table from a yellow cell, an arrow at its end. punti: centres of cells, two at
    least; passo: the side of a cell."""
    (da_x, da_y), (x, y) = punti[-2], punti[-1]
    dx, dy = (x > da_x) - (x < da_x), (y > da_y) - (y < da_y)
    via = "M" + "L".join(f"{n(a)} {n(b)}" for a, b in [*punti[:-1], (x - dx, y - dy)])
    punta = "M" + "L".join(f"{n(a)} {n(b)}" for a, b in (
        (x + 6 * dx, y + 6 * dy), (x - 3 * dx + 7 * dy, y - 3 * dy + 7 * dx),
        (x - 3 * dx - 7 * dy, y - 3 * dy - 7 * dx))) + "Z"
    gambo = '<path d="{}" fill="none" stroke="{}" stroke-width="{}" stroke-linejoin="round"/>'
    mezza = passo / 2
    return (gambo.format(via, CONTORNO, "9") + _sagoma(punta, ARANCIO, 2.8)
            + gambo.format(via, ARANCIO, "4")
            + _rettangolo(punti[0][0] - mezza, punti[0][1] - mezza, passo, passo, 2, GIALLO, 2.8))


def barra(x, y, largo=86.0, alto=22.0):
    """A bar of ten."""
    passo = largo / 10
    tacche = "".join(f"M{n(x + passo * i)} {n(y + (0 if i == 5 else alto * 0.5))}V{n(y + alto)}"
                     for i in range(1, 10))
    return (_rettangolo(x, y, largo, alto, 4, DECINE, 0) + _linee(tacche, 2)
            + _luce(x + 6, y + alto * 0.26, largo * 0.34, 2.6)
            + _rettangolo(x, y, largo, alto, 4, "none", 3.4))
