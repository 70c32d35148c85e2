#include "calculo/Lotes.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>

namespace texalon::calculo {

namespace {

// Rows in a batch, and batches read ahead of the one being written: enough to keep every core
// busy while the writer catches up, few enough that memory stays flat.
constexpr std::size_t kFilasPorLote = 256;
constexpr std::size_t kLotesEnCurso = 8;

struct Lote {
    std::vector<Registro> registros;
    std::vector<FilaCalculada> calculos;
    std::size_t repartidos = 0;  // rows handed to a worker
    std::size_t hechos = 0;  // rows calculated
};

class Canalizacion {
public:
    explicit Canalizacion(const std::function<FilaCalculada(const Registro&)>& calcula) : calcula_(calcula)
    {
        const unsigned nucleos = std::max(1U, std::thread::hardware_concurrency());
        for (unsigned i = 0; i < nucleos; ++i)
            trabajadores_.emplace_back([this] { Trabaja(); });
    }

    ~Canalizacion()
    {
        {
            const std::lock_guard<std::mutex> cerrojo(mutex_);
            fin_ = true;
        }
        hayTrabajo_.notify_all();
        for (std::thread& trabajador : trabajadores_)
            trabajador.join();
    }

    Canalizacion(const Canalizacion&) = delete;
    Canalizacion& operator=(const Canalizacion&) = delete;

    bool Llena() const
    {
        const std::lock_guard<std::mutex> cerrojo(mutex_);
        return lotes_.size() >= kLotesEnCurso;
    }

    bool Vacia() const
    {
        const std::lock_guard<std::mutex> cerrojo(mutex_);
        return lotes_.empty();
    }

    void Anade(std::vector<Registro> registros)
    {
        auto lote = std::make_unique<Lote>();
        lote->calculos.resize(registros.size());
        lote->registros = std::move(registros);
        {
            const std::lock_guard<std::mutex> cerrojo(mutex_);
            lotes_.push_back(std::move(lote));
        }
        hayTrabajo_.notify_all();
    }

    // The oldest batch, once every row of it is calculated.
    std::unique_ptr<Lote> Primero()
    {
        std::unique_lock<std::mutex> cerrojo(mutex_);
        loteHecho_.wait(cerrojo, [this] { return lotes_.front()->hechos == lotes_.front()->registros.size(); });
        std::unique_ptr<Lote> lote = std::move(lotes_.front());
        lotes_.pop_front();
        return lote;
    }

private:
    // Takes the next row of the oldest batch that has one, calculates it outside the lock.
    void Trabaja()
    {
        std::unique_lock<std::mutex> cerrojo(mutex_);
        while (true) {
            Lote* lote = nullptr;
            hayTrabajo_.wait(cerrojo, [this, &lote] {
                for (const std::unique_ptr<Lote>& candidato : lotes_)
                    if (candidato->repartidos < candidato->registros.size()) {
                        lote = candidato.get();
                        return true;
                    }
                return fin_;
            });
            if (lote == nullptr) return;
            const std::size_t fila = lote->repartidos++;
            cerrojo.unlock();
            FilaCalculada calculo = calcula_(lote->registros[fila]);
            cerrojo.lock();
            lote->calculos[fila] = std::move(calculo);
            if (++lote->hechos == lote->registros.size()) loteHecho_.notify_all();
        }
    }

    const std::function<FilaCalculada(const Registro&)>& calcula_;
    mutable std::mutex mutex_;
    std::condition_variable hayTrabajo_;
    std::condition_variable loteHecho_;
    std::deque<std::unique_ptr<Lote>> lotes_;
    bool fin_ = false;
    std::vector<std::thread> trabajadores_;
};

}  // namespace

void CalculaEnLotes(const std::function<std::optional<Registro>()>& siguiente,
                    const std::function<FilaCalculada(const Registro&)>& calcula,
                    const std::function<void(FilaCalculada&)>& entrega)
{
    Canalizacion canalizacion(calcula);
    bool quedan = true;
    while (quedan || !canalizacion.Vacia()) {
        while (quedan && !canalizacion.Llena()) {
            std::vector<Registro> registros;
            while (registros.size() < kFilasPorLote) {
                std::optional<Registro> registro = siguiente();
                if (!registro) {
                    quedan = false;
                    break;
                }
                registros.push_back(std::move(*registro));
            }
            if (!registros.empty()) canalizacion.Anade(std::move(registros));
        }
        if (canalizacion.Vacia()) break;
        std::unique_ptr<Lote> lote = canalizacion.Primero();
        for (FilaCalculada& calculada : lote->calculos)
            entrega(calculada);
    }
}

std::string_view NombresVistos::Nombre(std::uint32_t indice) const
{
    return std::string_view(nombres_).substr(inicios_[indice], inicios_[indice + 1] - inicios_[indice]);
}

std::optional<std::size_t> NombresVistos::Anota(std::string_view nombre, std::size_t fila)
{
    if (inicios_.empty()) inicios_.push_back(0);
    // At most half the slots taken, so that a search ends soon.
    if ((filas_.size() + 1) * 2 > huecos_.size()) Crece();
    const std::size_t mascara = huecos_.size() - 1;
    for (std::size_t i = std::hash<std::string_view>{}(nombre)&mascara;; i = (i + 1) & mascara) {
        if (huecos_[i] == 0) {
            huecos_[i] = static_cast<std::uint32_t>(filas_.size() + 1);
            nombres_.append(nombre);
            inicios_.push_back(static_cast<std::uint32_t>(nombres_.size()));
            filas_.push_back(static_cast<std::uint32_t>(fila));
            return std::nullopt;
        }
        if (Nombre(huecos_[i] - 1) == nombre) return filas_[huecos_[i] - 1];
    }
}

void NombresVistos::Crece()
{
    std::vector<std::uint32_t> huecos(std::max<std::size_t>(64, huecos_.size() * 2), 0);
    const std::size_t mascara = huecos.size() - 1;
    for (std::uint32_t indice = 0; indice < filas_.size(); ++indice) {
        std::size_t i = std::hash<std::string_view>{}(Nombre(indice)) & mascara;
        while (huecos[i] != 0) i = (i + 1) & mascara;
        huecos[i] = indice + 1;
    }
    huecos_ = std::move(huecos);
}

}  // namespace texalon::calculo
