#!/usr/bin/env python3
"""Mutation pass over the plain layers: does a wrong line of the code fail a test?

One mutant at a time: a single operator, constant or statement of a source file is changed, the
tree is rebuilt in its own build folder, the tests run (they stop at the first failure), and the
file is put back. A mutant that a test fails is killed; one that every test passes has
survived, and is either a gap in the tests or a change that changes nothing. A mutant that
does not compile is left out of the count.

    tools/mutantes/mutantes.py [--por-carpeta N] [--semilla S] [--solo FICHERO_DE_MUTANTES]
                               [--lista] src/engine src/files src/diagrams

The mutants are drawn from every site of the folders with a fixed seed, the same number from
each folder, so that a second run with the same seed tries the same mutants; --solo replays the
mutants of a file that an earlier run wrote (the survivors, after the tests that close them).
Writes build-mutantes/mutantes.json and prints the score of each folder.
"""

import argparse
import json
import os
import random
import re
import subprocess
import sys
import time
from pathlib import Path

RAIZ = Path(__file__).resolve().parents[2]
CONSTRUCCION = RAIZ / "build-mutantes"
# The property test of 100,000 value sets takes a quarter of a minute and the widget tests
# start a screen each: they stay in; a mutant that hangs a test is killed by its timeout.
TIEMPO_POR_PRUEBA = 120

# Each operator: the pattern of a site and what it becomes. Binary operators are written with
# their blanks, as the code is formatted, so that template brackets, pointers and unary signs
# are never taken for them.
OPERADORES = [
    ("relacional", r" < ", " <= "),
    ("relacional", r" <= ", " < "),
    ("relacional", r" > ", " >= "),
    ("relacional", r" >= ", " > "),
    ("igualdad", r" == ", " != "),
    ("igualdad", r" != ", " == "),
    ("aritmetico", r" \+ ", " - "),
    ("aritmetico", r" - ", " + "),
    ("aritmetico", r" \* ", " / "),
    ("aritmetico", r" / ", " * "),
    ("logico", r" && ", " || "),
    ("logico", r" \|\| ", " && "),
    ("booleano", r"\btrue\b", "false"),
    ("booleano", r"\bfalse\b", "true"),
]
CONSTANTE = re.compile(r"(?<![\w.])(\d+\.\d+|\d+)(?![\w.])")
ASIGNACION = re.compile(r"^(\s*)([\w.\[\]()>-]+(?:\(\w+(?:, \w+)?\))?) (=|\+=|-=|\*=|/=) [^=].*;\s*$")


def codigo(linea):
    """The part of a line that is code: no comment, and nothing on a line with a text literal."""
    if '"' in linea or "'" in linea or linea.lstrip().startswith(("#", "//", "*", "/*")):
        return ""
    return linea.split("//", 1)[0]


def sitios(fichero):
    """Every mutation of the file: (line number from 1, kind, new line)."""
    resultado = []
    lineas = fichero.read_text(encoding="utf-8").splitlines(keepends=True)
    for numero, linea in enumerate(lineas, 1):
        parte = codigo(linea)
        if not parte.strip():
            continue
        for clase, patron, nuevo in OPERADORES:
            for m in re.finditer(patron, parte):
                resultado.append((numero, clase, linea[: m.start()] + nuevo + linea[m.end():]))
        for m in CONSTANTE.finditer(parte):
            texto = m.group(1)
            # A tenth more of a real, one more of an integer; a real zero becomes one, since a
            # tenth more of it would be the same zero.
            if "." not in texto:
                cambiado = str(int(texto) + 1)
            else:
                cambiado = repr(float(texto) * 1.1) if float(texto) != 0.0 else "1.0"
            resultado.append((numero, "constante", linea[: m.start()] + cambiado + linea[m.end():]))
        if ASIGNACION.match(parte) and not re.match(r"\s*(const|constexpr|auto|static|double|int|Entero|bool)\b", parte):
            resultado.append((numero, "sentencia", ASIGNACION.match(parte).group(1) + ";  // borrada\n"))
    return resultado


def sortea(carpetas, por_carpeta, semilla):
    azar = random.Random(semilla)
    mutantes = []
    for carpeta in carpetas:
        todos = []
        for fichero in sorted((RAIZ / carpeta).glob("*.cpp")):
            for numero, clase, nueva in sitios(fichero):
                todos.append({"carpeta": carpeta, "fichero": str(fichero.relative_to(RAIZ)), "linea": numero,
                              "clase": clase, "nueva": nueva})
        azar.shuffle(todos)
        mutantes.extend(todos[:por_carpeta])
    return mutantes


def ejecuta(orden, **opciones):
    return subprocess.run(orden, cwd=RAIZ, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **opciones)


def configura():
    if not (CONSTRUCCION / "CMakeCache.txt").exists():
        ejecuta(["cmake", "-S", ".", "-B", str(CONSTRUCCION), "-DCMAKE_BUILD_TYPE=Release",
                 "-DTEXALON_HERRAMIENTAS=OFF"], check=True)
    construye = ejecuta(["cmake", "--build", str(CONSTRUCCION), "-j2"])
    if construye.returncode != 0:
        sys.exit("El árbol sin mutar no se construye:\n" + construye.stdout[-3000:])


def prueba(mutante):
    """Applies the mutant, builds, runs the tests; the file is always put back."""
    fichero = RAIZ / mutante["fichero"]
    original = fichero.read_text(encoding="utf-8")
    lineas = original.splitlines(keepends=True)
    lineas[mutante["linea"] - 1] = mutante["nueva"]
    try:
        fichero.write_text("".join(lineas), encoding="utf-8")
        if ejecuta(["cmake", "--build", str(CONSTRUCCION), "-j2"]).returncode != 0:
            return "no compila"
        pruebas = ejecuta(["ctest", "--test-dir", str(CONSTRUCCION), "-j2", "--stop-on-failure",
                           "--timeout", str(TIEMPO_POR_PRUEBA)],
                          env=dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="es_ES.UTF-8", LANG="es_ES.UTF-8"))
        if pruebas.returncode == 0:
            return "sobrevive"
        fallida = re.search(r"\d+ - (\S+) \(", pruebas.stdout)
        mutante["muerto_por"] = fallida.group(1) if fallida else "?"
        return "muerto"
    finally:
        fichero.write_text(original, encoding="utf-8")


def main():
    argumentos = argparse.ArgumentParser()
    argumentos.add_argument("carpetas", nargs="*", default=["src/engine", "src/files", "src/diagrams"])
    argumentos.add_argument("--por-carpeta", type=int, default=25)
    argumentos.add_argument("--semilla", type=int, default=2026)
    argumentos.add_argument("--solo")
    argumentos.add_argument("--lista", action="store_true", help="only list the mutants drawn")
    opciones = argumentos.parse_args()

    if opciones.solo:
        mutantes = json.loads(Path(opciones.solo).read_text(encoding="utf-8"))
    else:
        mutantes = sortea(opciones.carpetas, opciones.por_carpeta, opciones.semilla)
    if opciones.lista:
        for m in mutantes:
            print(f'{m["fichero"]}:{m["linea"]} {m["clase"]}: {m["nueva"].strip()}')
        return
    configura()
    inicio = time.time()
    for i, mutante in enumerate(mutantes, 1):
        mutante["desenlace"] = prueba(mutante)
        print(f'[{i}/{len(mutantes)} {time.time() - inicio:.0f} s] {mutante["desenlace"]}: '
              f'{mutante["fichero"]}:{mutante["linea"]} {mutante["nueva"].strip()}', flush=True)
        (CONSTRUCCION / "mutantes.json").write_text(json.dumps(mutantes, ensure_ascii=False, indent=1),
                                                    encoding="utf-8")
    # Put back the tree as it was built.
    ejecuta(["cmake", "--build", str(CONSTRUCCION), "-j2"])
    for carpeta in sorted({m["carpeta"] for m in mutantes}):
        validos = [m for m in mutantes if m["carpeta"] == carpeta and m["desenlace"] != "no compila"]
        muertos = sum(m["desenlace"] == "muerto" for m in validos)
        print(f"{carpeta}: {muertos}/{len(validos)} muertos" + (f" ({100 * muertos / len(validos):.0f} %)" if validos else ""))
    for m in mutantes:
        if m["desenlace"] == "sobrevive":
            print(f'sobrevive {m["fichero"]}:{m["linea"]} {m["clase"]}: {m["nueva"].strip()}')


if __name__ == "__main__":
    main()
