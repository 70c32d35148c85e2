// The rows of a table calculated on every core, in batches, and handed back in table order: the
// reader and the writer stay on the calling thread, each worker calculates in a project state of
// its own, and no more than a few batches are in memory at once, however long the table.
#pragma once

#include "calculo/Proyecto.h"
#include "calculo/Tabla.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace texalon::calculo {

// A row calculated, and what the command writes for it when the worker could write it already
// (empty otherwise): the writing of the results is spread over the cores too.
struct FilaCalculada {
    CalculoFichero calculo;
    std::string salida;
};

// Calls `calcula` on each record that `siguiente` gives, on as many threads as the machine has
// cores, and `entrega` with each result in the order of the records, on the calling thread.
// `calcula` must touch nothing but its record and its own result.
void CalculaEnLotes(const std::function<std::optional<Registro>()>& siguiente,
                    const std::function<FilaCalculada(const Registro&)>& calcula,
                    const std::function<void(FilaCalculada&)>& entrega);

// The members' names seen so far in a table, with the row of each: a few bytes a name, so that
// a table of a million rows is checked in a few tens of megabytes.
class NombresVistos {
public:
    // The row where the name was first seen, or nothing when it is new (and is now kept).
    std::optional<std::size_t> Anota(std::string_view nombre, std::size_t fila);

private:
    std::string_view Nombre(std::uint32_t indice) const;
    void Crece();

    std::string nombres_;  // every name, one after another
    std::vector<std::uint32_t> inicios_;  // where each name starts in nombres_, and one past the last
    std::vector<std::uint32_t> filas_;
    std::vector<std::uint32_t> huecos_;  // open addressing: index + 1 of a name, 0 for a free slot
};

}  // namespace texalon::calculo
