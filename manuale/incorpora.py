#!/usr/bin/python3
"""Puts the pictures of a book into its text.

    incorpora.py <text> <text with its pictures>

A picture that is only named bears the name of the folder it lies in, and the book with it; two
builds in different folders would give different bytes.
"""

import base64
import os
import re
import sys


def main():
    testo, esito = sys.argv[1:]

    def figura(trovata):
        with open(os.path.join(os.path.dirname(testo), trovata[1]), "rb") as file:
            return f'src="data:image/png;base64,{base64.b64encode(file.read()).decode("ascii")}"'

    with open(testo, encoding="utf-8") as file:
        intero = re.sub(r'src="([^":]+\.png)"', figura, file.read())
    with open(esito, "w", encoding="utf-8") as file:
        file.write(intero)


if __name__ == "__main__":
    main()
