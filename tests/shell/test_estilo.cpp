// The program's style: every frame and caption it keeps as a picture looks exactly as Fusion
// draws it, the first time and from the store, and a change of what it depends on (text, state,
// palette, size, font) is seen at once.
#include "shell/Estilo.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPixmapCache>
#include <QPushButton>
#include <QStyleFactory>
#include <QTest>
#include <QVBoxLayout>

#include <functional>
#include <memory>

using namespace texalon;

namespace {

// A widget in a window of its own, on show, as on a screen.
struct Ventana {
    QWidget marco;
    QWidget* widget = nullptr;
};

using Fabrica = std::function<QWidget*(QWidget* padre)>;

std::unique_ptr<Ventana> Abre(const Fabrica& fabrica, QStyle* estilo)
{
    auto ventana = std::make_unique<Ventana>();
    ventana->marco.setStyle(estilo);
    auto* disposicion = new QVBoxLayout(&ventana->marco);
    ventana->widget = fabrica(&ventana->marco);
    ventana->widget->setStyle(estilo);
    disposicion->addWidget(ventana->widget);
    ventana->marco.resize(320, 180);
    ventana->marco.show();
    if (!QTest::qWaitForWindowExposed(&ventana->marco)) qWarning("la ventana no se ha mostrado");
    return ventana;
}

QImage Pintada(QWidget& widget) { return widget.grab().toImage(); }

}  // namespace

class PruebaEstilo : public QObject {
    Q_OBJECT

    std::unique_ptr<QStyle> fusion_{QStyleFactory::create(QStringLiteral("Fusion"))};
    std::unique_ptr<EstiloTexalon> programa_ = std::make_unique<EstiloTexalon>();

    // The widget painted by Fusion, then by the program's style twice: the first painting makes
    // the pictures, the second draws them from the store. Each window is the active one when it
    // is painted.
    void EsperaComoFusion(const Fabrica& fabrica, const std::function<void(QWidget&)>& prepara = {})
    {
        QImage esperada;
        {
            auto conFusion = Abre(fabrica, fusion_.get());
            if (prepara) prepara(*conFusion->widget);
            esperada = Pintada(conFusion->marco);
        }
        auto conPrograma = Abre(fabrica, programa_.get());
        if (prepara) prepara(*conPrograma->widget);
        QCOMPARE(Pintada(conPrograma->marco), esperada);
        QCOMPARE(Pintada(conPrograma->marco), esperada);
    }

private slots:
    void init() { QPixmapCache::clear(); }

    void elMarcoDeUnGrupoEsElDeFusion()
    {
        EsperaComoFusion([](QWidget* padre) { return new QGroupBox(QStringLiteral("Datos de la sección"), padre); });
        EsperaComoFusion([](QWidget* padre) { return new QGroupBox(padre); });
    }

    void unCampoEsElDeFusionEnCadaEstado()
    {
        const Fabrica campo = [](QWidget* padre) {
            auto* edicion = new QLineEdit(QStringLiteral("0,400"), padre);
            edicion->setFocusPolicy(Qt::NoFocus);
            return edicion;
        };
        EsperaComoFusion(campo);
        EsperaComoFusion(campo, [](QWidget& w) { w.setEnabled(false); });
        EsperaComoFusion(campo, [](QWidget& w) { static_cast<QLineEdit&>(w).setReadOnly(true); });
        EsperaComoFusion(campo, [](QWidget& w) {
            w.setFocusPolicy(Qt::StrongFocus);
            w.activateWindow();
            w.setFocus();
            QVERIFY(QTest::qWaitForWindowActive(w.window()));
            QVERIFY(w.hasFocus());
        });
    }

    void losRotulosSonLosDeFusion()
    {
        const Qt::Alignment alineaciones[] = {Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignRight | Qt::AlignTop,
                                              Qt::AlignCenter};
        for (Qt::Alignment alineacion : alineaciones) {
            const Fabrica rotulo = [alineacion](QWidget* padre) {
                auto* etiqueta = new QLabel(QStringLiteral("Momento solicitante"), padre);
                etiqueta->setTextFormat(Qt::PlainText);
                etiqueta->setAlignment(alineacion);
                return etiqueta;
            };
            EsperaComoFusion(rotulo);
            EsperaComoFusion(rotulo, [](QWidget& w) { w.setEnabled(false); });
        }
        EsperaComoFusion([](QWidget* padre) { return new QPushButton(QStringLiteral("&Seleccionar"), padre); });
    }

    void loQueCambiaSeVeAlMomento()
    {
        const Fabrica campo = [](QWidget* padre) {
            auto* edicion = new QLineEdit(QStringLiteral("25"), padre);
            edicion->setFocusPolicy(Qt::NoFocus);
            return edicion;
        };
        auto conFusion = Abre(campo, fusion_.get());
        auto conPrograma = Abre(campo, programa_.get());
        QCOMPARE(Pintada(conPrograma->marco), Pintada(conFusion->marco));
        // Another base colour, another picture.
        for (Ventana* ventana : {conFusion.get(), conPrograma.get()}) {
            QPalette paleta = ventana->widget->palette();
            paleta.setColor(QPalette::Base, QColor(255, 255, 0));
            ventana->widget->setPalette(paleta);
        }
        const QImage amarilla = Pintada(conPrograma->marco);
        QCOMPARE(amarilla, Pintada(conFusion->marco));
        QCOMPARE(amarilla.pixelColor(conPrograma->widget->geometry().center()), QColor(255, 255, 0));
        // Another size, and another text.
        for (Ventana* ventana : {conFusion.get(), conPrograma.get()}) {
            ventana->marco.resize(260, 120);
            static_cast<QLineEdit*>(ventana->widget)->setText(QStringLiteral("30"));
        }
        QCOMPARE(Pintada(conPrograma->marco), Pintada(conFusion->marco));

        auto rotuloFusion = Abre([](QWidget* padre) { return new QLabel(QStringLiteral("Canto"), padre); }, fusion_.get());
        auto rotulo = Abre([](QWidget* padre) { return new QLabel(QStringLiteral("Canto"), padre); }, programa_.get());
        QCOMPARE(Pintada(rotulo->marco), Pintada(rotuloFusion->marco));
        for (Ventana* ventana : {rotuloFusion.get(), rotulo.get()}) {
            static_cast<QLabel*>(ventana->widget)->setText(QStringLiteral("Recubrimiento"));
            QFont negrita = ventana->widget->font();
            negrita.setBold(true);
            ventana->widget->setFont(negrita);
        }
        QCOMPARE(Pintada(rotulo->marco), Pintada(rotuloFusion->marco));
    }
};

QTEST_MAIN(PruebaEstilo)

#include "test_estilo.moc"
