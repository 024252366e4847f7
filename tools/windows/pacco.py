#!/usr/bin/python3
"""Packs the folder that the build has installed for Windows.

    tools/windows/pacco.py <folder> <build>/pacchetto

The folder holds somme/, as it was installed; the build's knows the version and has the icon. Beside
somme/ come the zip and the installer; the same folder gives the same bytes. Prints their names.
"""

import os
import re
import subprocess
import sys
import time
import zipfile

# What a user may read or write ends its lines as the system does.
TESTI = (".txt", ".lng", ".ini")


def righe_di_windows(percorso):
    with open(percorso, "rb") as file:
        vecchio = file.read()
    nuovo = re.sub(rb"\r?\n", b"\r\n", vecchio)
    if nuovo != vecchio:
        with open(percorso, "wb") as file:
            file.write(nuovo)


def elenco(cartella):
    """Every file below the folder, named from there, in an order that is always the same."""
    nomi = []
    for dove, _, file in os.walk(cartella):
        nomi += [os.path.relpath(os.path.join(dove, nome), cartella) for nome in file]
    return sorted(nomi)


def comprimi(cartella, archivio, epoca):
    momento = time.gmtime(epoca)[:6]
    with zipfile.ZipFile(archivio, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as zip_:
        for nome in elenco(cartella):
            voce = zipfile.ZipInfo("somme/" + nome.replace(os.sep, "/"), momento)
            voce.compress_type = zipfile.ZIP_DEFLATED
            voce.create_system = 0
            with open(os.path.join(cartella, nome), "rb") as file:
                zip_.writestr(voce, file.read())


def installatore(cartella, fatto, versione, costruito):
    """The uninstaller takes away each file that was laid, by its name, and no other."""
    nomi = elenco(cartella)
    via = [f'Delete "$INSTDIR\\{nome}"'.replace("/", "\\") for nome in nomi]
    cartelle = sorted({os.path.dirname(nome) for nome in nomi} - {""}, reverse=True)
    via += [f'RMDir "$INSTDIR\\{nome}"'.replace("/", "\\") for nome in cartelle]
    lista = os.path.join(os.path.dirname(cartella), "via.nsh")
    with open(lista, "w", encoding="utf-8-sig") as file:
        file.write("\n".join(via) + "\n")
    qui = os.path.dirname(os.path.abspath(__file__))
    subprocess.run(["makensis", "-V2", "-INPUTCHARSET", "UTF8", f"-DVERSIONE={versione}",
                    f"-DCARTELLA={os.path.abspath(cartella)}", f"-DVIA={os.path.abspath(lista)}",
                    f"-DFATTO={os.path.abspath(fatto)}",
                    f"-DICONA={os.path.abspath(os.path.join(costruito, 'icone'))}",
                    os.path.join(qui, "installatore.nsi")], check=True)
    os.remove(lista)


def main():
    dove, costruito = sys.argv[1:]
    cartella = os.path.join(dove, "somme")
    with open(os.path.join(costruito, "versione"), encoding="utf-8") as file:
        versione, epoca = file.read().split()
    for nome in elenco(cartella):
        percorso = os.path.join(cartella, nome)
        if nome.endswith(TESTI):
            righe_di_windows(percorso)
        os.utime(percorso, (int(epoca), int(epoca)))
    archivio = os.path.join(dove, f"somme-{versione}-windows.zip")
    installa = os.path.join(dove, f"somme-{versione}-windows.exe")
    comprimi(cartella, archivio, int(epoca))
    installatore(cartella, installa, versione, costruito)
    print(archivio)
    print(installa)


if __name__ == "__main__":
    main()
