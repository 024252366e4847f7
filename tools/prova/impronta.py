"""What a folder holds, in short."""

import os


def impronta(cartella):
    """What tells whether anything in a folder changed."""
    segni = []
    for dove, _, nomi in os.walk(cartella):
        for nome in (".", *nomi):
            stato = os.stat(os.path.join(dove, nome))
            segni.append((dove, nome, stato.st_size, stato.st_mtime_ns))
    return sorted(segni)
