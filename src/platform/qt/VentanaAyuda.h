// The help of the program on this desktop: a window that shows the help's pages, with their
// links, the contents, and back and forward. The help file is a folder of pages with a map,
// "mapa.txt", whose lines give a context number and the page of that topic.
#pragma once

#include <QMap>
#include <QMargins>
#include <QRect>
#include <QSize>
#include <QString>
#include <QWidget>

class QTextBrowser;
class QToolButton;

namespace texalon::plataforma {

// The map of a help folder: context number to page. Lines that do not read as "NUMBER PAGE"
// are skipped. An unreadable map is an empty one.
QMap<int, QString> LeeMapaAyuda(const QString& ficheroAyuda);

// Where the help window's inside goes, of the size wanted, on a screen whose free area (without
// panels and docks) is `disponible`, with a frame of `marco` around it: to the right of the main
// window's frame `principal` if it fits there, else to its left, else over it, moved in so that
// the whole window, frame included, lies on the free area; a window larger than that area is made
// smaller. With no main window (an empty `principal`) it is centred on the free area.
QRect LugarDeLaAyuda(const QRect& disponible, const QRect& principal, QSize tamano, const QMargins& marco);

// The contents page of a help folder.
inline constexpr const char* kPaginaContenido = "contenido.html";

class VentanaAyuda final : public QWidget {
    Q_OBJECT
public:
    explicit VentanaAyuda(QWidget* padre = nullptr);

    // Shows the topic of the context, or the contents page with no context (0). When the help
    // folder or the topic cannot be found the window says so in place of the page.
    void Muestra(const QString& ficheroAyuda, int contexto);

    QTextBrowser* Visor() const { return visor_; }
    // The page on show, as a local file, empty when none.
    QString PaginaMostrada() const;

private:
    void MuestraAviso(const QString& texto);
    void Actualiza();

    QString ficheroAyuda_;
    QTextBrowser* visor_ = nullptr;
    QToolButton* contenido_ = nullptr;
    QToolButton* atras_ = nullptr;
    QToolButton* adelante_ = nullptr;
};

}  // namespace texalon::plataforma
