// The reports of the batch command: after a file is calculated, the report that Print makes on
// its screen, for the cell that the command line chooses, on the printer given.
#pragma once

#include "calculo/Proyecto.h"
#include "platform/Impresora.h"

#include <string>

namespace texalon::calculo {

// "no se ha podido escribir el informe en «DESTINO».": the report's file could not be written.
std::string MensajeInformeSinEscribir(const std::string& destino);

// Prints the report of a calculated file for the cell (tipo, capas), as Print prints it on the
// file's screen after a Calculate with that cell chosen, to the file `destino`. A cell that the
// report refuses ("---") leaves the report's own message in the file's errors and nothing
// reaches the printer; a file the printer cannot write leaves the message that names it; any
// other run-time error of the report leaves its own. Only for a file that succeeded.
void ImprimeInforme(CalculoFichero& calculo, plataforma::Impresora& impresora, int tipo, int capas, char separador,
                    const std::string& destino);

// Whether the report of the calculation's cell (tipo, capas) can be printed: the calculation
// succeeded and, for flexure, the cell has a result.
bool InformeImprimible(const CalculoFichero& calculo, int tipo, int capas);

// A printer that passes everything on to another but the end of the document: the reports of
// many members, each of which ends its document, go one after another into one file.
class ImpresoraContinua final : public plataforma::ImpresoraQueReenvia {
public:
    using ImpresoraQueReenvia::ImpresoraQueReenvia;
    // The document goes on: the next report starts on a page of its own.
    void EndDoc() override {}
};

}  // namespace texalon::calculo
