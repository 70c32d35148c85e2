#!/usr/bin/env python3
"""Writes a Windows icon (.ico) from square PNG pictures of several sizes, each kept as PNG
inside the icon, as Windows has read them since Vista.

    ico.py SALIDA.ico ENTRADA-16.png ENTRADA-32.png ...
"""
import struct
import sys


def lado_png(datos):
    if datos[:8] != b"\x89PNG\r\n\x1a\n" or datos[12:16] != b"IHDR":
        raise SystemExit("no es un PNG")
    ancho, alto = struct.unpack(">II", datos[16:24])
    if ancho != alto or ancho > 256:
        raise SystemExit(f"un icono es cuadrado y de 256 píxeles como mucho: {ancho}x{alto}")
    return ancho


def main():
    if len(sys.argv) < 3:
        raise SystemExit("uso: ico.py SALIDA.ico ENTRADA.png...")
    imagenes = []
    for nombre in sys.argv[2:]:
        with open(nombre, "rb") as f:
            datos = f.read()
        imagenes.append((lado_png(datos), datos))
    imagenes.sort(key=lambda par: par[0])
    cabecera = struct.pack("<HHH", 0, 1, len(imagenes))
    desplazamiento = 6 + 16 * len(imagenes)
    entradas = b""
    for lado, datos in imagenes:
        byte_lado = 0 if lado == 256 else lado
        entradas += struct.pack("<BBBBHHII", byte_lado, byte_lado, 0, 0, 1, 32, len(datos), desplazamiento)
        desplazamiento += len(datos)
    with open(sys.argv[1], "wb") as f:
        f.write(cabecera + entradas + b"".join(datos for _, datos in imagenes))


if __name__ == "__main__":
    main()
