// Replays a corpus through the fuzz target without libFuzzer, so that every build runs it as
// an ordinary test: each file of the folders given (or each file given), in name order. A
// finding stops the process as it would stop the fuzzer.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo);

namespace {

// The files to replay: a folder gives the regular files directly inside it.
bool AnadeEntradas(const std::filesystem::path& ruta, std::vector<std::filesystem::path>& entradas)
{
    std::error_code error;
    if (std::filesystem::is_regular_file(ruta, error)) {
        entradas.push_back(ruta);
        return true;
    }
    if (!std::filesystem::is_directory(ruta, error)) return false;
    std::vector<std::filesystem::path> del_directorio;
    for (const auto& elemento : std::filesystem::directory_iterator(ruta, error))
        if (elemento.is_regular_file(error)) del_directorio.push_back(elemento.path());
    if (error) return false;
    std::sort(del_directorio.begin(), del_directorio.end());
    entradas.insert(entradas.end(), del_directorio.begin(), del_directorio.end());
    return true;
}

bool Lee(const std::filesystem::path& ruta, std::vector<std::uint8_t>& bytes)
{
    bytes.clear();
    std::FILE* fichero = std::fopen(ruta.string().c_str(), "rb");
    if (fichero == nullptr) return false;
    std::uint8_t bloque[4096];
    std::size_t leidos = 0;
    while ((leidos = std::fread(bloque, 1, sizeof bloque, fichero)) > 0)
        bytes.insert(bytes.end(), bloque, bloque + leidos);
    const bool bien = std::ferror(fichero) == 0;
    std::fclose(fichero);
    return bien;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "uso: %s CARPETA_O_FICHERO...\n", argc > 0 ? argv[0] : "replay_lectores");
        return 2;
    }
    std::vector<std::filesystem::path> entradas;
    for (int i = 1; i < argc; ++i) {
        if (!AnadeEntradas(argv[i], entradas)) {
            std::fprintf(stderr, "no se puede leer %s\n", argv[i]);
            return 2;
        }
    }

    std::vector<std::uint8_t> bytes;
    for (const auto& entrada : entradas) {
        if (!Lee(entrada, bytes)) {
            std::fprintf(stderr, "no se puede leer %s\n", entrada.string().c_str());
            return 2;
        }
        // A copy of the input's own size lets the address sanitizer see a read past its end.
        const std::vector<std::uint8_t> datos(bytes);
        LLVMFuzzerTestOneInput(datos.data(), datos.size());
    }
    std::printf("%zu entradas reproducidas\n", entradas.size());
    return 0;
}
