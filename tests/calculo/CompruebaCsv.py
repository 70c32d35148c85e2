"""Runs texalon-calculo --csv as a user does, on the default projects, a failing file and
names that need quoting, under the regional setting of the environment, and reads the table
back with Python's csv module, as a spreadsheet would. Each cell must be the one that the text
output shows, each "alcanza" the yellow of the grid by the JSON values, each failure the
messages that the other modes give.

  python3 CompruebaCsv.py PROGRAMA CARPETA_DE_DATOS SEPARADOR_DECIMAL
"""

import csv
import io
import json
import os
import re
import decimal as decimal_exacto
import shutil
import subprocess
import sys
import tempfile

# The module that the checking scripts share, read without leaving a cache in the source tree.
sys.dont_write_bytecode = True
from comprobaciones import comprueba, fallos  # noqa: E402

CABECERA = ["fichero", "tipo", "refuerzo", "capas", "resultado", "alcanza", "error", "elemento", "solicitado",
            "sin_refuerzo", "veredicto"]
BOM = b"\xef\xbb\xbf"
CAPAS = 5
WINDOWS = False


def ejecuta(programa, argumentos):
    return subprocess.run([programa] + argumentos, capture_output=True, check=False)


def con_decimales(valor, decimales, decimal):
    """The value as a field of the screen writes it: rounded half away from zero."""
    cuanto = decimal_exacto.Decimal(1).scaleb(-decimales)
    texto = str(decimal_exacto.Decimal(repr(valor)).quantize(cuanto, rounding=decimal_exacto.ROUND_HALF_UP))
    return texto.replace(".", decimal)


def tabla_de_texto(salida, fichero):
    """The type names and the grid of one file in the text output: {(type name, layers): cell}."""
    lineas = salida.split("\n")
    # The file's line, the grid's title, its heading and one row for each number of layers.
    inicio = next(i for i, linea in enumerate(lineas) if linea.startswith(fichero + ": "))
    cabecera = lineas[inicio + 2]
    tipos = re.split(r" {2,}", cabecera.strip())[1:]
    celdas = {}
    for fila in lineas[inicio + 3:inicio + 3 + CAPAS]:
        partes = fila.split()
        for tipo, celda in zip(tipos, partes[1:]):
            celdas[(tipo, partes[0])] = celda
    return tipos, celdas


def alcanza_por_json(objeto, indice_tipo, capas):
    """The yellow of a grid cell from the values of the JSON object."""
    if objeto["tipo"] == "confinamiento":
        return objeto["RESU"][indice_tipo][capas - 1] >= objeto["INCR"]
    return objeto["MU"][indice_tipo][capas - 1] >= objeto["MD"]


def fuera_de_comillas_solo_crlf(texto):
    """Every line end outside a quoted field is CR LF."""
    entre_comillas = False
    for i, c in enumerate(texto):
        if c == '"':
            entre_comillas = not entre_comillas
        elif not entre_comillas and c == "\n" and (i == 0 or texto[i - 1] != "\r"):
            return False
        elif not entre_comillas and c == "\r" and texto[i + 1:i + 2] != "\n":
            return False
    return texto.endswith("\r\n")


def main():
    programa, datos, decimal = sys.argv[1], sys.argv[2], sys.argv[3]
    # The Windows build: a file name there cannot hold a double quote.
    global WINDOWS
    WINDOWS = len(sys.argv) > 4 and sys.argv[4] == "windows"
    separador = ";" if decimal == "," else ","
    otro = "," if separador == ";" else ";"
    carpeta = tempfile.mkdtemp(prefix="texalon_csv_")
    try:
        return comprueba_en(programa, datos, decimal, separador, otro, carpeta)
    finally:
        shutil.rmtree(carpeta)


def copia(datos, carpeta, origen, nombre):
    destino = os.path.join(carpeta, nombre)
    shutil.copyfile(os.path.join(datos, origen), destino)
    return destino


def comprueba_en(programa, datos, decimal, separador, otro, carpeta):
    # The default projects, and the default beam again under names that need quoting (the
    # field separator, a double quote) and one that does not (the other separator).
    buenos = {
        copia(datos, carpeta, "rectangular.vmf", "rectangular.vmf"): "rectangular",
        copia(datos, carpeta, "seccion_t.vmf", "seccion_t.vmf"): "T",
        copia(datos, carpeta, "confinamiento.vmc", "confinamiento.vmc"): "confinamiento",
        copia(datos, carpeta, "viga_md250.vmf", "viga_md250.vmf"): "rectangular",
        copia(datos, carpeta, "rectangular.vmf", "viga" + separador + "1.vmf"): "rectangular",
        copia(datos, carpeta, "rectangular.vmf", "viga" + otro + "3.vmf"): "rectangular",
    }
    if not WINDOWS:
        buenos[copia(datos, carpeta, "rectangular.vmf", 'viga "2".vmf')] = "rectangular"
    # A flexure file cut short, which cannot be read, and a confinement file that is not there.
    roto = os.path.join(carpeta, "roto.vmf")
    with open(roto, "wb") as f:
        f.write(b"1\r\n0.4\r\n")
    ausente = os.path.join(carpeta, "ausente.vmc")
    ficheros = list(buenos)[:3] + [roto] + list(buenos)[3:] + [ausente]

    ejecucion = ejecuta(programa, ["--csv"] + ficheros)
    comprueba(ejecucion.returncode == 1, "--csv con un fichero que falla termina con %d" % ejecucion.returncode)
    crudo = ejecucion.stdout
    comprueba(crudo.startswith(BOM), "sin marca de orden de bytes al principio")
    comprueba(crudo.count(BOM) == 1, "la marca de orden de bytes está más de una vez")
    texto = crudo[len(BOM):].decode("utf-8")
    comprueba(fuera_de_comillas_solo_crlf(texto), "hay líneas que no terminan en CR LF")
    comprueba(texto.startswith(separador.join(CABECERA) + "\r\n"),
              "la cabecera no es %r" % (separador.join(CABECERA) + "\r\n"))

    try:
        filas = list(csv.reader(io.StringIO(texto, newline=""), delimiter=separador, quotechar='"',
                                doublequote=True, strict=True))
    except csv.Error as error:
        comprueba(False, "la tabla no se lee como CSV con %r: %s" % (separador, error))
        return informa(0, separador, decimal)
    comprueba(filas[0] == CABECERA, "cabecera leída %r" % filas[0])
    comprueba(all(len(fila) == len(CABECERA) for fila in filas), "filas con otro número de campos")
    por_fichero = {}
    for fila in filas[1:]:
        por_fichero.setdefault(fila[0], []).append(fila)
    comprueba(list(por_fichero) == ficheros, "los ficheros de la tabla no son los dados, en su orden: %r"
              % list(por_fichero))

    # The same files in the text mode and in JSON, under the same setting.
    texto_normal = ejecuta(programa, ficheros)
    salida_normal = texto_normal.stdout.decode("utf-8")
    objetos = {}
    for linea in ejecuta(programa, ["--json"] + ficheros).stdout.decode("utf-8").splitlines():
        objeto = json.loads(linea)
        objetos[objeto["fichero"]] = objeto
    comprueba(ejecucion.stderr == texto_normal.stderr,
              "la salida de errores de --csv no es la del modo de texto:\n%s\n%s"
              % (ejecucion.stderr.decode("utf-8"), texto_normal.stderr.decode("utf-8")))

    patron = re.compile(r"^\d+" + re.escape(decimal) + r"\d+$")
    alcanzan = set()
    for fichero, tipo in buenos.items():
        filas_fichero = por_fichero.get(fichero, [])
        tipos, celdas = tabla_de_texto(salida_normal, fichero)
        comprueba(tipos == ["TEXALON L", "TEXALON H", "TEXALON X"], "tipos del texto %r" % tipos)
        if not comprueba(len(filas_fichero) == len(tipos) * CAPAS,
                         "%s: %d filas y se esperaban 15" % (fichero, len(filas_fichero))):
            continue
        for i, fila in enumerate(filas_fichero):
            refuerzo, capas = tipos[i // CAPAS], i % CAPAS + 1
            objeto = objetos[fichero]
            pilar = tipo == "confinamiento"
            esperada = [fichero, tipo, refuerzo, str(capas), celdas[(refuerzo, str(capas))],
                        "sí" if alcanza_por_json(objeto, i // CAPAS, capas) else "no", "", "",
                        con_decimales(objeto["INCR" if pilar else "MD"], 2, decimal),
                        "" if pilar else con_decimales(objeto["MUSR"], 1, decimal),
                        (objeto["veredicto"] or "").strip()]
            comprueba(fila == esperada, "%s: fila %r y se esperaba %r" % (fichero, fila, esperada))
            comprueba(fila[4] == "---" or patron.match(fila[4]),
                      "%s: resultado %r sin el separador decimal %r" % (fichero, fila[4], decimal))
            alcanzan.add((os.path.basename(fichero), fila[5]))
    # MD = 250: some cells reach it, some do not.
    comprueba({("viga_md250.vmf", "sí"), ("viga_md250.vmf", "no")} <= alcanzan,
              "viga_md250.vmf debería tener celdas que alcanzan y que no")

    # A failed file: one row, with the messages that the JSON and the error output give.
    for fichero, tipo in ((roto, ""), (ausente, "confinamiento")):
        mensajes = [l[len(fichero) + 2:] for l in texto_normal.stderr.decode("utf-8").splitlines()
                    if l.startswith(fichero + ": ")]
        esperada = [fichero, tipo, "", "", "", "", "\n".join(mensajes), "", "", "", ""]
        comprueba(len(mensajes) == 2, "%s: mensajes %r" % (fichero, mensajes))
        comprueba(objetos[fichero]["error"] == esperada[6], "%s: el error del JSON es otro" % fichero)
        comprueba(por_fichero.get(fichero) == [esperada],
                  "%s: filas %r y se esperaba %r" % (fichero, por_fichero.get(fichero), [esperada]))

    # Quotes only where RFC 4180 asks for them.
    def cita(campo):
        return '"' + campo.replace('"', '""') + '"'
    con_separador = os.path.join(carpeta, "viga" + separador + "1.vmf")
    con_comillas = os.path.join(carpeta, 'viga "2".vmf')
    sin_citar = os.path.join(carpeta, "viga" + otro + "3.vmf")
    comprueba(("\r\n" + cita(con_separador) + separador + "rectangular" + separador) in texto,
              "el nombre con el separador no va entre comillas")
    comprueba(WINDOWS or ("\r\n" + cita(con_comillas) + separador + "rectangular" + separador) in texto,
              "el nombre con comillas no las lleva dobladas entre comillas")
    comprueba(("\r\n" + sin_citar + separador + "rectangular" + separador + "TEXALON L" + separador) in texto,
              "el nombre sin nada que citar va entre comillas")

    # The good files alone: status 0 and nothing on the error output.
    solo_buenos = ejecuta(programa, ["--csv"] + list(buenos))
    comprueba(solo_buenos.returncode == 0, "--csv con ficheros buenos termina con %d" % solo_buenos.returncode)
    comprueba(solo_buenos.stderr == b"", "--csv con ficheros buenos escribe errores")

    return informa(len(filas) - 1, separador, decimal)


def informa(filas, separador, decimal):
    for fallo in fallos:
        print(fallo, file=sys.stderr)
    if not fallos:
        print("%d filas comprobadas con separador %r y decimal %r" % (filas, separador, decimal))
    return 1 if fallos else 0


if __name__ == "__main__":
    sys.exit(main())
