#!/usr/bin/env python3
"""The joint report of a table's members, as a user makes it and reads it:

    CompruebaInformeConjunto.py PROGRAMA TABLA [windows]

Makes the project file of every member (--proyectos) and the report of each file (--informe
CARPETA), then the joint report of the table (--informe FICHERO.pdf), for the cell that Calcular
shows and for a cell that some members have no result in (--tipo 3 --capas 5). Reads them with
pdftotext and checks that the joint report is the summary, then every member's report with its
own pages, word for word as its file's report, but for the page numbers, which run on; and that
the summary names each member, with the reason where it has no report.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile

# The module that the checking scripts share, read without leaving a cache in the source tree.
sys.dont_write_bytecode = True
from comprobaciones import comprueba, fallos  # noqa: E402


def ejecuta(programa, argumentos):
    """Runs the command with its outputs in files, not pipes: under Wine a program that draws
    starts Wine's desktop, which inherits the outputs and keeps a pipe open after the program
    has ended."""
    entorno = dict(os.environ)
    entorno.pop("DISPLAY", None)
    with tempfile.TemporaryFile() as salida, tempfile.TemporaryFile() as errores:
        hecho = subprocess.run([programa] + argumentos, stdout=salida, stderr=errores, check=False, env=entorno)
        salida.seek(0)
        errores.seek(0)
        return subprocess.CompletedProcess(hecho.args, hecho.returncode, salida.read(), errores.read())


def paginas(pdf):
    """The text of each page, without its page number."""
    texto = subprocess.run(["pdftotext", "-layout", pdf, "-"], capture_output=True, check=True).stdout.decode("utf-8")
    hojas = texto.split("\f")
    if hojas and not hojas[-1].strip():
        hojas.pop()
    return [re.sub(r"Página \d+", "Página", hoja) for hoja in hojas]


def comprueba_celda(programa, tabla, carpeta, celda):
    proyectos = os.path.join(carpeta, "proyectos")
    informes = os.path.join(carpeta, "informes")
    conjunto = os.path.join(carpeta, "conjunto.pdf")
    for ruta in (proyectos, informes):
        shutil.rmtree(ruta, ignore_errors=True)
    hecho = ejecuta(programa, ["--tabla", "--resumen", "--proyectos", proyectos] + celda + [tabla])
    comprueba(hecho.returncode == 0, "--proyectos terminó con %d: %s" % (hecho.returncode, hecho.stderr))
    resumen = [linea.split(";" if ";" in linea else ",") for linea in
               hecho.stdout.decode("utf-8-sig").splitlines()[1:]]
    miembros = [fila[0] for fila in resumen]

    conjunta = ejecuta(programa, ["--tabla", "--informe", conjunto] + celda + [tabla])
    comprueba(conjunta.returncode == 0, "el informe conjunto terminó con %d: %s"
              % (conjunta.returncode, conjunta.stderr.decode("utf-8")))
    todas = paginas(conjunto)

    # Each member's own report, from its project file; none where the cell has no result.
    propias = []
    sin_informe = []
    for miembro in miembros:
        extension = ".vmc" if os.path.exists(os.path.join(proyectos, miembro + ".vmc")) else ".vmf"
        fichero = os.path.join(proyectos, miembro + extension)
        suya = ejecuta(programa, ["--informe", informes] + celda + [fichero])
        pdf = os.path.join(informes, miembro + ".pdf")
        if suya.returncode == 0 and os.path.exists(pdf):
            propias.append(paginas(pdf))
        else:
            sin_informe.append(miembro)

    de_miembros = sum(len(p) for p in propias)
    comprueba(len(todas) > de_miembros, "%s: %d páginas, y los informes de los elementos tienen %d"
              % (celda, len(todas), de_miembros))
    resumen_pdf = "\n".join(todas[:len(todas) - de_miembros])
    comprueba("RESUMEN DE LOS ELEMENTOS" in resumen_pdf, "%s: el resumen no lleva su título" % celda)
    for miembro in miembros:
        comprueba(miembro in resumen_pdf, "%s: el resumen no nombra %s" % (celda, miembro))
    if sin_informe:
        comprueba("El tipo de refuerzo y número de capas elegidas no" in resumen_pdf,
                  "%s: el resumen no da el motivo de %s" % (celda, sin_informe))
    siguiente = len(todas) - de_miembros
    for suyas in propias:
        for pagina in suyas:
            comprueba(todas[siguiente] == pagina, "%s: la página %d del informe conjunto no es la del informe de su "
                      "fichero:\n%s\n---\n%s" % (celda, siguiente + 1, todas[siguiente], pagina))
            siguiente += 1
    return sin_informe



def main():
    programa, tabla = sys.argv[1], sys.argv[2]
    carpeta = tempfile.mkdtemp(prefix="texalon_conjunto_")
    try:
        comprueba(not comprueba_celda(programa, tabla, carpeta, []),
                  "con la celda de Calcular todos los elementos deberían tener informe")
        comprueba(comprueba_celda(programa, tabla, carpeta, ["--tipo", "3", "--capas", "5"]),
                  "con TEXALON X de 5 capas algún elemento debería quedarse sin informe")
    finally:
        shutil.rmtree(carpeta)
    for fallo in fallos:
        print("FALLO: " + fallo, file=sys.stderr)
    return 1 if fallos else 0


if __name__ == "__main__":
    sys.exit(main())
