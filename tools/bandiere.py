#!/usr/bin/env python3
"""Draws the 15 flag pictures that the program ships, shipped/1.ICO to shipped/15.ICO.

The main window shows the picture named by the place of the chosen line in the sorted currency
combo, plus one, not by the record of the currency. The pictures therefore follow the order
that the combo has once all fifteen currencies are entered: 1 is "Dollaro - USA", 3 is
"Euro - Unione Europea", 15 is "Yen - Giappone".

Each file is a 32x32 icon, 32 bits a pixel, in the plain bitmap form of the ICO format.
Run it from anywhere: python3 tools/bandiere.py
"""
import math
import os
import struct

LATO = 32

ROSSO = (206, 17, 38)
BIANCO = (255, 255, 255)
BLU = (0, 40, 104)
VERDE = (0, 146, 70)
GIALLO = (255, 206, 0)
NERO = (0, 0, 0)
AZZURRO = (0, 161, 222)
ARANCIO = (255, 136, 62)


def orizzontali(*bande):
    """Horizontal bands of equal height, from the top."""
    return lambda x, y: bande[y * len(bande) // LATO]


def verticali(*bande):
    """Vertical bands of equal width, from the left."""
    return lambda x, y: bande[x * len(bande) // LATO]


def usa(x, y):
    if x < 14 and y < 14:
        return BIANCO if (x % 4 == 1 and y % 4 == 1) else BLU
    return ROSSO if (y * 13 // LATO) % 2 == 0 else BIANCO


def portogallo(x, y):
    return VERDE if x < 13 else ROSSO


def europa(x, y):
    for k in range(12):
        angolo = 2 * math.pi * k / 12
        cx = 15.5 + 10 * math.cos(angolo)
        cy = 15.5 + 10 * math.sin(angolo)
        if abs(x - cx) <= 1.2 and abs(y - cy) <= 1.2:
            return GIALLO
    return BLU


def croce_nordica(fondo, croce):
    def disegno(x, y):
        return croce if 9 <= x <= 14 or 13 <= y <= 18 else fondo
    return disegno


def spagna(x, y):
    return ROSSO if y < 8 or y >= 24 else GIALLO


def regno_unito(x, y):
    if 13 <= x <= 18 or 13 <= y <= 18:
        return ROSSO
    if 11 <= x <= 20 or 11 <= y <= 20:
        return BIANCO
    if abs(x - y) <= 2 or abs(x + y - (LATO - 1)) <= 2:
        return BIANCO
    return BLU


def giappone(x, y):
    return ROSSO if (x - 15.5) ** 2 + (y - 15.5) ** 2 <= 64 else BIANCO


BANDIERE = [
    usa,                                        # 1  Dollaro - USA
    portogallo,                                 # 2  Escudo - Portogallo
    europa,                                     # 3  Euro - Unione Europea
    orizzontali(ROSSO, BIANCO, BLU),            # 4  Fiorino - Olanada
    verticali(NERO, GIALLO, ROSSO),             # 5  Franco - Belgio
    verticali(BLU, BIANCO, ROSSO),              # 6  Franco - Francia
    orizzontali(ROSSO, BIANCO, AZZURRO),        # 7  Franco - Lussemburgo
    verticali(VERDE, BIANCO, ROSSO),            # 8  Lira - Italia
    croce_nordica(BIANCO, BLU),                 # 9  Marco - Finlandia
    orizzontali(NERO, ROSSO, GIALLO),           # 10 Marco - Germania
    spagna,                                     # 11 Peseta - Spagna
    orizzontali(ROSSO, BIANCO, ROSSO),          # 12 Scellino - Austria
    regno_unito,                                # 13 Sterlina - Gran Bretagna
    verticali(VERDE, BIANCO, ARANCIO),          # 14 Sterlina - Irlanda
    giappone,                                   # 15 Yen - Giappone
]


def icona(disegno):
    """The bytes of a one-image ICO file: a dark frame round the drawing, fully opaque."""
    pixel = bytearray()
    for riga in range(LATO - 1, -1, -1):        # bitmaps run from the bottom row up
        for x in range(LATO):
            bordo = x in (0, LATO - 1) or riga in (0, LATO - 1)
            r, g, b = (64, 64, 64) if bordo else disegno(x, riga)
            pixel += bytes((b, g, r, 255))
    maschera = bytes(LATO * 4)                  # one bit a pixel, rows of 4 bytes: all shown
    intestazione = struct.pack("<IiiHHIIiiII", 40, LATO, 2 * LATO, 1, 32, 0,
                               len(pixel) + len(maschera), 0, 0, 0, 0)
    immagine = intestazione + pixel + maschera
    directory = struct.pack("<HHH", 0, 1, 1)
    voce = struct.pack("<BBBBHHII", LATO, LATO, 0, 0, 1, 32, len(immagine), 6 + 16)
    return directory + voce + immagine


def main():
    cartella = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "shipped")
    os.makedirs(cartella, exist_ok=True)
    for numero, disegno in enumerate(BANDIERE, start=1):
        with open(os.path.join(cartella, f"{numero}.ICO"), "wb") as f:
            f.write(icona(disegno))


if __name__ == "__main__":
    main()
