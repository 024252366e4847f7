#!/usr/bin/python3
"""Gathers what the program in a folder stands on: libraries, Qt's plug-ins, fonts, and their licences.

    raccogli.py <folder>

The program is <folder>/programma/somme. Beside it come lib, plugins, caratteri and qt.conf; licences go
into <folder>/licenze, a file a package of Debian's. The program is told to look for libraries in lib
first, and nobody else is: what it starts, such as the reader of the manual, takes its own.
"""

import glob
import os
import re
import shutil
import subprocess
import sys

# The C library belongs to the system, which loads programs by it.
DI_SISTEMA = re.compile(r"(ld-linux.*|lib(c|m|dl|rt|pthread|resolv|util|anl|nsl|mvec|BrokenLocale))\.so\.\d+$")
# What the program loads when it first wants it.
A_RICHIESTA = ("libSDL2-2.0.so.0", "libcups.so.2")
PLUGIN = ("platforms/libqxcb.so", "platforms/libqwayland-generic.so",
          "wayland-shell-integration/libxdg-shell.so", "wayland-decoration-client/*.so",
          "iconengines/*.so", "imageformats/*.so", "platforminputcontexts/*.so")
# Where the plug-ins are looked for, seen from the program.
QT_CONF = "[Paths]\nPrefix=.\nPlugins=plugins\n"
CARATTERI = ("/usr/share/fonts/truetype/andika/Andika-*.ttf",
             "/usr/share/fonts/truetype/liberation2/LiberationSans-*.ttf")
LICENZE_COMUNI = "/usr/share/common-licenses"


def detto(*comando):
    return subprocess.run(comando, check=True, capture_output=True, text=True,
                          env={"LC_ALL": "C", "PATH": "/usr/sbin:/usr/bin:/sbin:/bin"}).stdout


def fondamenta(percorsi):
    """The libraries that files stand on, directly or not, by the names by which they are asked for."""
    trovate = {}
    for percorso in percorsi:
        for riga in detto("ldd", percorso).splitlines():
            parti = riga.split()
            if "=>" not in parti or DI_SISTEMA.match(parti[0]):
                continue
            if parti[2] == "not":
                sys.exit(f"{percorso} stands on {parti[0]}, which is not installed")
            trovate[parti[0]] = parti[2]
    return trovate


def installata(nome):
    """The file of a library that is found by its name."""
    for riga in detto("ldconfig", "-p").splitlines():
        parti = riga.split()
        if parti and parti[0] == nome and "x86-64" in riga:
            return parti[-1]
    return sys.exit(f"{nome} is not installed")


def copia(da, a):
    os.makedirs(os.path.dirname(a), exist_ok=True)
    shutil.copyfile(os.path.realpath(da), a)


def cammino(file, dove):
    """Where a program or library looks for what it stands on, before anywhere else."""
    subprocess.run(["patchelf", "--force-rpath", "--set-rpath", dove, file], check=True)


def raccogli_plugin(programma):
    radice = detto("qmake6", "-query", "QT_INSTALL_PLUGINS").strip()
    presi = []
    for forma in PLUGIN:
        trovati = sorted(glob.glob(os.path.join(radice, forma)))
        if not trovati:
            sys.exit(f"no {forma} in {radice}")
        for file in trovati:
            copia(file, os.path.join(programma, "plugins", os.path.relpath(file, radice)))
            presi.append(file)
    with open(os.path.join(programma, "qt.conf"), "w", encoding="ascii") as file:
        file.write(QT_CONF)
    return presi


def raccogli_librerie(programma, plugin):
    richieste = {nome: installata(nome) for nome in A_RICHIESTA}
    tutte = fondamenta([os.path.join(programma, "somme"), *plugin, *richieste.values()]) | richieste
    for nome, file in tutte.items():
        posta = os.path.join(programma, "lib", nome)
        copia(file, posta)
        # A library with a path of its own would not ask for the program's.
        if re.search(r"\((RUNPATH|RPATH)\)", detto("readelf", "-d", posta)):
            cammino(posta, "$ORIGIN")
    cammino(os.path.join(programma, "somme"), "$ORIGIN/lib")
    return list(tutte.values())


def raccogli_caratteri(programma):
    presi = [file for forma in CARATTERI for file in sorted(glob.glob(forma))]
    if len(presi) < len(CARATTERI):
        sys.exit(f"not all of the fonts are installed: {CARATTERI}")
    for file in presi:
        copia(file, os.path.join(programma, "caratteri", os.path.basename(file)))
    return presi


def raccogli_licenze(cartella, file):
    """The licence of each package that a file comes from, and the texts that those name."""
    cercati = {os.path.realpath(f) for f in file}
    # Debian's lists know some files by the older name of their folder.
    nomi = cercati | {nome.removeprefix("/usr") for nome in cercati}
    trovati = subprocess.run(["dpkg", "-S", *sorted(nomi)], capture_output=True, text=True,
                             check=False).stdout.splitlines()
    di = {riga.split(": ")[1]: riga.split(":")[0] for riga in trovati if ": " in riga}
    senza = [n for n in sorted(cercati) if n not in di and n.removeprefix("/usr") not in di]
    if senza:
        sys.exit(f"no package has {senza}")
    pacchetti = set(di.values())
    licenze = os.path.join(cartella, "licenze")
    comuni = set()
    for pacchetto in sorted(pacchetti):
        testo = f"/usr/share/doc/{pacchetto}/copyright"
        copia(testo, os.path.join(licenze, pacchetto))
        with open(testo, encoding="utf-8", errors="replace") as aperto:
            comuni |= set(re.findall(LICENZE_COMUNI + r"/([A-Za-z]+(?:-[\d.]*\d)?)", aperto.read()))
    for nome in sorted(comuni):
        if os.path.exists(os.path.join(LICENZE_COMUNI, nome)):
            copia(os.path.join(LICENZE_COMUNI, nome), os.path.join(licenze, "testi", nome))


def main():
    cartella, = sys.argv[1:]
    programma = os.path.join(cartella, "programma")
    plugin = raccogli_plugin(programma)
    librerie = raccogli_librerie(programma, plugin)
    caratteri = raccogli_caratteri(programma)
    raccogli_licenze(cartella, [*plugin, *librerie, *caratteri])


if __name__ == "__main__":
    main()
