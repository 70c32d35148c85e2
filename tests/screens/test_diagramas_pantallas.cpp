// The diagrams as the user meets them on the screens: the chart that each Calculate leaves, the
// diagram buttons, the strain diagram that follows the grid, the characteristics chart of each
// option, the zoom with the mouse, and the counters cleared by the close.
#include "comun/Filas.h"
#include "comun/Pantallas.h"
#include "comun/Usuario.h"
#include "diagrams/Lista.h"
#include "diagrams/qt/Lienzo.h"
#include "platform/dobles/PlataformaDoble.h"
#include "screens/FmCarac.h"
#include "screens/FmConfina.h"
#include "screens/FmFlexion.h"
#include "screens/RejillaResultados.h"
#include "state/General.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <cstdlib>

using namespace texalon;

class PruebaDiagramasPantallas : public prueba::PruebaDePantalla {
    Q_OBJECT

    QPointer<Formulario> pantalla_;

    Formulario* EnPrueba() const override { return pantalla_; }

    template <typename Pantalla, typename... Argumentos>
    Pantalla& Abre(Argumentos... argumentos)
    {
        delete pantalla_;
        Estado() = General{};
        EstadoDibujo() = GeneralDibujo{};
        ValoresIniciales(Estado());
        Estado().MD = 250.0;
        NuevosDobles(separador_);
        auto* pantalla = new Pantalla(argumentos...);
        pantalla_ = pantalla;
        pantalla->show();
        pantalla->activateWindow();
        if (!QTest::qWaitForWindowActive(pantalla)) qWarning("la pantalla no se ha activado");
        return *pantalla;
    }

    Lienzo* Dibujo(const char* nombre) { return qobject_cast<Lienzo*>(C(nombre)); }

    // The captions of the texts on show in the picture.
    QStringList Textos(const char* dibujo)
    {
        QStringList textos;
        for (const ElementoPantalla& e : Dibujo(dibujo)->Escena().Elementos(ClasePantalla::Tit))
            if (e.visible) textos << e.texto;
        return textos;
    }

    // Whether the picture, as painted, shows nearly this colour within two pixels of the point:
    // the lines are antialiased, so their edges blend with the white.
    static bool ColorCerca(const QImage& imagen, QPointF punto, const QColor& color)
    {
        for (int dx = -2; dx <= 2; ++dx)
            for (int dy = -2; dy <= 2; ++dy) {
                const QPoint p(qRound(punto.x()) + dx, qRound(punto.y()) + dy);
                if (!imagen.rect().contains(p)) continue;
                const QColor pintado = imagen.pixelColor(p);
                const int distancia = std::abs(pintado.red() - color.red()) +
                                      std::abs(pintado.green() - color.green()) +
                                      std::abs(pintado.blue() - color.blue());
                if (distancia <= 60) return true;
            }
        return false;
    }

    // Whether some point along the line shows its colour: a dotted line has gaps.
    static bool LineaVista(const QImage& imagen, const ElementoPantalla& e)
    {
        for (int k = 1; k < 20; ++k) {
            const double t = k / 20.0;
            if (ColorCerca(imagen, QPointF(e.x1 + (e.x2 - e.x1) * t, e.y1 + (e.y2 - e.y1) * t), e.color)) return true;
        }
        return false;
    }

    static QColor Catalogo(int tipo)
    {
        const Color c = Estado().COLORES(tipo);
        return QColor(c % 256, (c / 256) % 256, c / 65536);
    }

    // The picture painted offscreen, as the user sees it.
    QImage Pintado(const char* dibujo) { return Dibujo(dibujo)->viewport()->grab().toImage(); }

    // Every sheet type has a thick line of its catalogue colour that the picture shows in it.
    void CurvasEnSusColores(const char* dibujo)
    {
        const QImage imagen = Pintado(dibujo);
        for (int tipo = 1; tipo <= Estado().NTIPOS; ++tipo) {
            bool vista = false;
            for (const ElementoPantalla& e : Dibujo(dibujo)->Escena().Elementos(ClasePantalla::Linea))
                if (e.grosor == 2 && e.color == Catalogo(tipo) &&
                    ColorCerca(imagen, QPointF((e.x1 + e.x2) / 2, (e.y1 + e.y2) / 2), Catalogo(tipo)))
                    vista = true;
            QVERIFY2(vista, qPrintable(QStringLiteral("tipo %1").arg(tipo)));
        }
    }

    RejillaResultados* Rejilla(const char* nombre) { return qobject_cast<RejillaResultados*>(C(nombre)); }

    // A click of the mouse on a cell of a grid.
    void ClicEnCelda(const char* rejilla, int fila, int columna)
    {
        RejillaResultados* r = Rejilla(rejilla);
        const QRect celda = r->visualItemRect(r->item(fila, columna));
        QTest::mouseClick(r->viewport(), Qt::LeftButton, {}, celda.center());
    }

private slots:
    void cleanup()
    {
        CierraPantalla();
        separador_ = ',';
    }

    void calcularFlexionDejaElDiagramaDeMomentosPorCapas_data()
    {
        prueba::DosFilas("seccionT", {"rectangular", false}, {"T", true});
    }

    void calcularFlexionDejaElDiagramaDeMomentosPorCapas()
    {
        QFETCH(bool, seccionT);
        Abre<FmFlexion>(seccionT ? SeccionFlexion::T : SeccionFlexion::Rectangular);
        QCOMPARE(EstadoDibujo().NLINEA, Entero{0});
        prueba::Pulsa(C("CM_CALCULAR"));
        const GeneralDibujo& d = EstadoDibujo();
        QVERIFY(d.F_CAPAS);
        QVERIFY(!d.F_MOMENTOS && !d.F_PIVOTES && !d.F_SECCION);
        QVERIFY(Textos("PIC_FLEXION").contains(QStringLiteral("DIAGRAMA DE MOMENTOS ULTIMOS")));
        QVERIFY(Textos("PIC_FLEXION").contains(QStringLiteral("Nº capas")));
        QVERIFY(d.NLINEA > 0);
        QCOMPARE(static_cast<int>(Dibujo("PIC_FLEXION")->Escena().Elementos(ClasePantalla::Linea).size()),
                 int(d.NLINEA));
        QCOMPARE(static_cast<int>(Dibujo("PIC_FLEXION")->Escena().Elementos(ClasePantalla::Tit).size()), int(d.NTIT));
        // The fit used the picture's own size.
        QCOMPARE(d.ANCHOPIC, double(kPicFlexion.tamano.ancho));
        QCOMPARE(d.ALTOPIC, double(kPicFlexion.tamano.alto));
    }

    void losBotonesDeFlexionDibujanSuDiagrama()
    {
        Abre<FmFlexion>(SeccionFlexion::Rectangular);
        prueba::Pulsa(C("CM_CALCULAR"));
        prueba::Pulsa(C("CM_ARMADURA"));
        QVERIFY(EstadoDibujo().F_MOMENTOS && !EstadoDibujo().F_CAPAS);
        QVERIFY(Textos("PIC_FLEXION").contains(QStringLiteral("Ar (mm²)")));
        prueba::Pulsa(C("CM_DEFORMACIONES"));
        QVERIFY(EstadoDibujo().F_PIVOTES && !EstadoDibujo().F_MOMENTOS);
        QVERIFY(Textos("PIC_FLEXION").contains(QStringLiteral("DIAGRAMA DE PIVOTES")));
        prueba::Pulsa(C("CM_SECCION"));
        QVERIFY(EstadoDibujo().F_SECCION && !EstadoDibujo().F_PIVOTES);
        QVERIFY(Textos("PIC_FLEXION").contains(QStringLiteral("SECCION")));
        prueba::Pulsa(C("CM_CAPAS"));
        QVERIFY(EstadoDibujo().F_CAPAS && !EstadoDibujo().F_SECCION);
    }

    void laSeccionSeDibujaSinCalcular()
    {
        Abre<FmFlexion>(SeccionFlexion::T);
        prueba::Pulsa(C("CM_SECCION"));
        QVERIFY(EstadoDibujo().F_SECCION);
        // The T drawing has eight outline lines and the texts of its two extra dimensions.
        QVERIFY(Textos("PIC_FLEXION").contains(QStringLiteral("0,20")));
        QVERIFY(Textos("PIC_FLEXION").contains(QStringLiteral("0,125")));
    }

    void elDiagramaDeDeformacionesSigueALaCeldaElegida_data() { prueba::FilasSeparador(); }

    void elDiagramaDeDeformacionesSigueALaCeldaElegida()
    {
        QFETCH(char, separador);
        separador_ = separador;
        Abre<FmFlexion>(SeccionFlexion::Rectangular);
        prueba::Pulsa(C("CM_CALCULAR"));
        prueba::Pulsa(C("CM_DEFORMACIONES"));
        // The strain of the top fibre of cell (1, 1), read from its result field.
        const QString ec11 = Campo("TX_EPSC")->text() + QStringLiteral("‰");
        QVERIFY(Textos("PIC_FLEXION").contains(ec11));
        ClicEnCelda("FG_FLEXION", 5, 2);
        const QString ec52 = Campo("TX_EPSC")->text() + QStringLiteral("‰");
        QVERIFY(ec52 != ec11);
        QVERIFY(Textos("PIC_FLEXION").contains(ec52));
        QVERIFY(!Textos("PIC_FLEXION").contains(ec11));
        // The diagram took the cell's type: EPSD now holds type 2's design strains.
        QCOMPARE(Estado().E, Estado().CATALOGO(2, 2));
    }

    void unaCeldaSinResultadoDejaElDiagramaYApagaElBoton()
    {
        Abre<FmFlexion>(SeccionFlexion::Rectangular);
        prueba::Pulsa(C("CM_CALCULAR"));
        prueba::Pulsa(C("CM_DEFORMACIONES"));
        const QStringList antes = Textos("PIC_FLEXION");
        // Type X gains nothing from the third layer on in the default project.
        QCOMPARE(Rejilla("FG_FLEXION")->Texto(3, 3), QStringLiteral("---"));
        ClicEnCelda("FG_FLEXION", 3, 3);
        QVERIFY(!C("CM_DEFORMACIONES")->isEnabled());
        QCOMPARE(Textos("PIC_FLEXION"), antes);
        QVERIFY(doble_->mensajes.mostrados.empty());
    }

    void conLaSeccionALaVistaLaRejillaSoloCambiaElBoton()
    {
        Abre<FmFlexion>(SeccionFlexion::Rectangular);
        prueba::Pulsa(C("CM_CALCULAR"));
        prueba::Pulsa(C("CM_SECCION"));
        const QStringList seccion = Textos("PIC_FLEXION");
        ClicEnCelda("FG_FLEXION", 2, 1);
        QVERIFY(C("CM_DEFORMACIONES")->isEnabled());
        QVERIFY(EstadoDibujo().F_SECCION);
        QCOMPARE(Textos("PIC_FLEXION"), seccion);
    }

    // Every diagram command of a screen builds its list and shows it on the screen's own
    // picture, fitted to the picture's pixels with the procedure's isotropic setting: one
    // scale for the section drawings, one of its own each way for the charts.
    void cadaOrdenMuestraSuDiagramaConSuAjuste_data()
    {
        QTest::addColumn<QString>("pantalla");
        QTest::addColumn<QString>("boton");  // pressed after a Calculate; empty: the Calculate's chart
        QTest::addColumn<int>("isotropico");
        for (const char* flexion : {"FM_FLEXION", "FM_FLEXIONT"}) {
            QTest::addRow("%s, Calcular", flexion) << flexion << QString() << 0;
            QTest::addRow("%s, CM_ARMADURA", flexion) << flexion << QStringLiteral("CM_ARMADURA") << 0;
            QTest::addRow("%s, CM_CAPAS", flexion) << flexion << QStringLiteral("CM_CAPAS") << 0;
            QTest::addRow("%s, CM_DEFORMACIONES", flexion) << flexion << QStringLiteral("CM_DEFORMACIONES") << 0;
            QTest::addRow("%s, CM_SECCION", flexion) << flexion << QStringLiteral("CM_SECCION") << 1;
        }
        QTest::newRow("FM_CONFINA, Calcular") << QStringLiteral("FM_CONFINA") << QString() << 0;
        QTest::newRow("FM_CONFINA, CM_CONFINA") << QStringLiteral("FM_CONFINA") << QStringLiteral("CM_CONFINA") << 0;
        QTest::newRow("FM_CONFINA, CM_SECCION") << QStringLiteral("FM_CONFINA") << QStringLiteral("CM_SECCION") << 1;
        QTest::newRow("FM_CARAC, al abrir") << QStringLiteral("FM_CARAC") << QString() << 0;
        QTest::newRow("FM_CARAC, OP_TH") << QStringLiteral("FM_CARAC") << QStringLiteral("OP_TH") << 0;
    }

    void cadaOrdenMuestraSuDiagramaConSuAjuste()
    {
        QFETCH(QString, pantalla);
        QFETCH(QString, boton);
        QFETCH(int, isotropico);
        const texalon::Dibujo* dibujo = &kPicFlexion;
        if (pantalla == QLatin1String("FM_FLEXION")) Abre<FmFlexion>(SeccionFlexion::Rectangular);
        if (pantalla == QLatin1String("FM_FLEXIONT")) Abre<FmFlexion>(SeccionFlexion::T);
        if (pantalla == QLatin1String("FM_CONFINA")) {
            Abre<FmConfina>();
            dibujo = &kPicConfina;
        }
        if (pantalla == QLatin1String("FM_CARAC")) {
            Abre<FmCarac>();
            dibujo = &kPicCarac;
        } else {
            prueba::Pulsa(C("CM_CALCULAR"));
        }
        if (!boton.isEmpty()) prueba::Pulsa(C(qPrintable(boton)));

        const GeneralDibujo& d = EstadoDibujo();
        const TamanoDibujo tamano = dibujo->tamano;
        QCOMPARE(d.ANCHOPIC, double(tamano.ancho));
        QCOMPARE(d.ALTOPIC, double(tamano.alto));
        const Encuadre suyo = Encuadra(d, tamano.ancho, tamano.alto, Entero(isotropico));
        const Encuadre otro = Encuadra(d, tamano.ancho, tamano.alto, Entero(1 - isotropico));
        // The two settings fit this list differently, so the fit tells which one was used.
        QVERIFY(suyo.escalaX != otro.escalaX || suyo.escalaY != otro.escalaY);
        QCOMPARE(d.ESCALAX, suyo.escalaX);
        QCOMPARE(d.ESCALAY, suyo.escalaY);
        // The picture shows the list so.
        const QString diferencia = prueba::DiferenciaConLaLista(*Dibujo(dibujo->nombre), d, Entero(isotropico));
        QVERIFY2(diferencia.isEmpty(), qPrintable(diferencia));
    }

    void calcularConfinamientoDejaSuDiagramaYLosBotonesDibujan()
    {
        Abre<FmConfina>();
        prueba::Pulsa(C("CM_CALCULAR"));
        QVERIFY(Textos("PIC_CONFINA").contains(QStringLiteral("DIAGRAMA DE CONFINAMIENTO")));
        QVERIFY(!EstadoDibujo().F_SECCION);
        // Nine bars a type, and the legend's three swatches.
        QCOMPARE(int(EstadoDibujo().NBARRA), 3 * 5 + 3);
        prueba::Pulsa(C("CM_SECCION"));
        QVERIFY(EstadoDibujo().F_SECCION);
        QCOMPARE(int(EstadoDibujo().NSECCIR), 2);
        QVERIFY(Textos("PIC_CONFINA").contains(QStringLiteral("SECCION")));
        prueba::Pulsa(C("CM_CONFINA"));
        QVERIFY(!EstadoDibujo().F_SECCION);
        QVERIFY(Textos("PIC_CONFINA").contains(QStringLiteral("Incr. resistencia")));
    }

    void elVeredictoNoTapaLosClicsDelDibujo()
    {
        Abre<FmConfina>();
        prueba::Pulsa(C("CM_CALCULAR"));
        Lienzo* dibujo = Dibujo("PIC_CONFINA");
        auto* info = qobject_cast<QLabel*>(C("LB_INFO"));
        QVERIFY(info->testAttribute(Qt::WA_TransparentForMouseEvents));
        QTest::mouseClick(dibujo->viewport(), Qt::LeftButton, {}, info->geometry().center());
        QVERIFY(EstadoDibujo().F_ZOOM);
        QTest::keyClick(dibujo, Qt::Key_Escape);
        QVERIFY(!EstadoDibujo().F_ZOOM);
    }

    void elVeredictoSeLeeSobreElDiagrama()
    {
        Abre<FmConfina>();
        Estado().INCR = 3.0;
        prueba::Pulsa(C("CM_CALCULAR"));
        auto* info = qobject_cast<QLabel*>(C("LB_INFO"));
        QVERIFY(info->isVisible());
        // What the picture shows where the verdict stands: its red, over the chart's title.
        const QImage imagen = Dibujo("PIC_CONFINA")->grab().toImage();
        const QPoint esquina = info->mapTo(Dibujo("PIC_CONFINA"), QPoint(2, 2));
        QCOMPARE(QColor(imagen.pixel(esquina)), QColor(255, 0, 0));
        // And its letters are white.
        const QImage etiqueta = info->grab().toImage();
        bool blanco = false;
        for (int x = 0; x < etiqueta.width() && !blanco; ++x)
            for (int y = 0; y < etiqueta.height() && !blanco; ++y)
                blanco = QColor(etiqueta.pixel(x, y)) == QColor(Qt::white);
        QVERIFY(blanco);
    }

    void elZoomConDosClicsYElClicDerechoQueReajusta()
    {
        Abre<FmConfina>();
        prueba::Pulsa(C("CM_CALCULAR"));
        Lienzo* dibujo = Dibujo("PIC_CONFINA");
        const double letra = dibujo->Escena().Elementos(ClasePantalla::Tit).front().tamano;
        QTest::mouseClick(dibujo->viewport(), Qt::LeftButton, {}, QPoint(100, 50));
        QTest::mouseMove(dibujo->viewport(), QPoint(210, 103));
        QVERIFY(dibujo->BandaVisible());
        QCOMPARE(dibujo->Banda(), QRectF(100, 50, 110, 53));
        QTest::mouseClick(dibujo->viewport(), Qt::LeftButton, {}, QPoint(210, 103));
        // 440 / 110 and 212 / 53: the picture's size over the band's.
        QCOMPARE(EstadoDibujo().ZOOM, 4.0);
        QCOMPARE(dibujo->Escena().Elementos(ClasePantalla::Tit).front().tamano, letra * 4);
        QTest::mouseClick(dibujo->viewport(), Qt::RightButton, {}, QPoint(5, 5));
        QCOMPARE(dibujo->Escena().Elementos(ClasePantalla::Tit).front().tamano, letra);
    }

    void laBandaEmpezadaSobreviveAUnDiagramaNuevo()
    {
        Abre<FmFlexion>(SeccionFlexion::Rectangular);
        prueba::Pulsa(C("CM_CALCULAR"));
        Lienzo* dibujo = Dibujo("PIC_FLEXION");
        QTest::mouseClick(dibujo->viewport(), Qt::LeftButton, {}, QPoint(40, 20));
        QVERIFY(EstadoDibujo().F_ZOOM);
        prueba::Pulsa(C("CM_ARMADURA"));
        QVERIFY(EstadoDibujo().F_MOMENTOS);
        // The new diagram leaves the first corner armed: the next click zooms from it.
        QVERIFY(EstadoDibujo().F_ZOOM);
        QCOMPARE(EstadoDibujo().ZOOMX1, 40.0);
        QTest::mouseMove(dibujo->viewport(), QPoint(150, 64));
        QTest::mouseClick(dibujo->viewport(), Qt::LeftButton, {}, QPoint(150, 64));
        QVERIFY(!EstadoDibujo().F_ZOOM);
        // 440 / 110 and 176 / 44.
        QCOMPARE(EstadoDibujo().ZOOM, 4.0);
        // The band stays on show after the second click, until the pointer moves again.
        QVERIFY(dibujo->BandaVisible());
        QTest::mouseMove(dibujo->viewport(), QPoint(160, 70));
        QVERIFY(!dibujo->BandaVisible());
    }

    void losDiagramasPintadosMuestranLosColoresDelCatalogo()
    {
        Abre<FmFlexion>(SeccionFlexion::Rectangular);
        prueba::Pulsa(C("CM_CALCULAR"));
        CurvasEnSusColores("PIC_FLEXION");
        prueba::Pulsa(C("CM_ARMADURA"));
        CurvasEnSusColores("PIC_FLEXION");
        // The marker of MD, thick and plum.
        bool marca = false;
        for (const ElementoPantalla& e : Dibujo("PIC_FLEXION")->Escena().Elementos(ClasePantalla::Linea))
            if (e.grosor == 3 && e.color == QColor(128, 0, 64)) marca = LineaVista(Pintado("PIC_FLEXION"), e);
        QVERIFY(marca);
        // The pivots: red circles.
        prueba::Pulsa(C("CM_DEFORMACIONES"));
        const QImage pivotes = Pintado("PIC_FLEXION");
        const auto puntos = Dibujo("PIC_FLEXION")->Escena().Elementos(ClasePantalla::Punto);
        QCOMPARE(int(puntos.size()), 3);
        // A hollow circle of a one-pixel rim, antialiased: somewhere on it the red is plain.
        for (const ElementoPantalla& p : puntos) {
            bool rojo = false;
            for (int x = qFloor(p.izquierda); x <= qCeil(p.izquierda + p.ancho); ++x)
                for (int y = qFloor(p.arriba); y <= qCeil(p.arriba + p.alto); ++y) {
                    const QColor c = pivotes.pixelColor(x, y);
                    rojo = rojo || (c.red() >= 200 && c.green() <= 140 && c.blue() <= 140);
                }
            QVERIFY(rojo);
        }
        // The section: the steel blue, the sheet red.
        // At the picture's scale the bars are a pixel or two thick and show their black border
        // alone; zoomed four times over the sheet, their fill shows.
        prueba::Pulsa(C("CM_SECCION"));
        Lienzo* dibujo = Dibujo("PIC_FLEXION");
        const ElementoPantalla lamina = dibujo->Escena().Elementos(ClasePantalla::Barra).back();
        QCOMPARE(lamina.color, QColor(255, 0, 0));
        const QPoint esquina(qRound(lamina.izquierda) - 5, qRound(lamina.arriba) - 20);
        QTest::mouseClick(dibujo->viewport(), Qt::LeftButton, {}, esquina);
        QTest::mouseMove(dibujo->viewport(), esquina + QPoint(110, 44));
        QTest::mouseClick(dibujo->viewport(), Qt::LeftButton, {}, esquina + QPoint(110, 44));
        QCOMPARE(EstadoDibujo().ZOOM, 4.0);
        QTest::mouseMove(dibujo->viewport(), QPoint(1, 1));
        const QImage seccion = Pintado("PIC_FLEXION");
        const ElementoPantalla ampliada = dibujo->Escena().Elementos(ClasePantalla::Barra).back();
        QVERIFY(ampliada.alto >= 4);
        QVERIFY(ColorCerca(seccion,
                           QPointF(ampliada.izquierda + ampliada.ancho / 2, ampliada.arriba + ampliada.alto / 2),
                           QColor(255, 0, 0)));

        Abre<FmConfina>();
        prueba::Pulsa(C("CM_CALCULAR"));
        const QImage barras = Pintado("PIC_CONFINA");
        for (int tipo = 1; tipo <= Estado().NTIPOS; ++tipo) {
            bool vista = false;
            for (const ElementoPantalla& b : Dibujo("PIC_CONFINA")->Escena().Elementos(ClasePantalla::Barra))
                if (b.color == Catalogo(tipo) && b.alto > 4 &&
                    ColorCerca(barras, QPointF(b.izquierda + b.ancho / 2, b.arriba + b.alto / 2), Catalogo(tipo)))
                    vista = true;
            QVERIFY(vista);
        }
        // The column: grey within a red rim, the earlier element in front.
        prueba::Pulsa(C("CM_SECCION"));
        const QImage columna = Pintado("PIC_CONFINA");
        const auto formas = Dibujo("PIC_CONFINA")->Escena().Elementos(ClasePantalla::SecCir);
        QCOMPARE(int(formas.size()), 2);
        const ElementoPantalla& hormigon = formas[0];
        const ElementoPantalla& refuerzo = formas[1];
        QVERIFY(ColorCerca(columna,
                           QPointF(hormigon.izquierda + hormigon.ancho / 2, hormigon.arriba + hormigon.alto / 2),
                           QColor(192, 192, 192)));
        QVERIFY(ColorCerca(columna, QPointF(refuerzo.izquierda + 1.5, refuerzo.arriba + refuerzo.alto / 2),
                           QColor(255, 0, 0)));

        Abre<FmCarac>();
        const QImage tension = Pintado("PIC_CARAC");
        bool linea = false;
        for (const ElementoPantalla& e : Dibujo("PIC_CARAC")->Escena().Elementos(ClasePantalla::Linea))
            if (e.grosor == 2 && e.color == Catalogo(1))
                linea = ColorCerca(tension, QPointF((e.x1 + e.x2) / 2, (e.y1 + e.y2) / 2), Catalogo(1));
        QVERIFY(linea);
    }

    void caracteristicasDibujaElTipoDeCadaOpcion()
    {
        Abre<FmCarac>();
        QVERIFY(Textos("PIC_CARAC").contains(QStringLiteral("DIAGRAMA TENSION-DEFORMACION")));
        // The name stands by the line of the type in hand alone.
        QVERIFY(Textos("PIC_CARAC").contains(QStringLiteral("TEXALON L")));
        QVERIFY(!Textos("PIC_CARAC").contains(QStringLiteral("TEXALON X")));
        prueba::Pulsa(qobject_cast<QRadioButton*>(C("OP_TX")));
        QVERIFY(Textos("PIC_CARAC").contains(QStringLiteral("TEXALON X")));
        QVERIFY(!Textos("PIC_CARAC").contains(QStringLiteral("TEXALON L")));
        // Its design points: one a number of layers.
        QCOMPARE(int(EstadoDibujo().NPUNTO), int(Estado().MAXCAPAS));
    }

    void elClicDerechoEnCaracteristicasNuncaEsIsotropico()
    {
        Abre<FmCarac>();
        EstadoDibujo().F_SECCION = true;
        Lienzo* dibujo = Dibujo("PIC_CARAC");
        const ElementoPantalla eje = dibujo->Escena().Elementos(ClasePantalla::Linea).front();
        QTest::mouseClick(dibujo->viewport(), Qt::RightButton, {}, QPoint(5, 5));
        const ElementoPantalla otraVez = dibujo->Escena().Elementos(ClasePantalla::Linea).front();
        QCOMPARE(otraVez.x2, eje.x2);
        QCOMPARE(otraVez.y2, eje.y2);
    }

    void alCerrarLosContadoresVuelvenACero()
    {
        Abre<FmFlexion>(SeccionFlexion::Rectangular);
        prueba::Pulsa(C("CM_CALCULAR"));
        QVERIFY(EstadoDibujo().NLINEA > 0);
        CierraPantalla();
        const GeneralDibujo& d = EstadoDibujo();
        QCOMPARE(d.NLINEA + d.NTIT + d.NBARRA + d.NPUNTO + d.NSECRECT + d.NSECCIR, 0);
        // The picture went with its screen.
        for (QWidget* widget : QApplication::allWidgets())
            QVERIFY(qobject_cast<Lienzo*>(widget) == nullptr);
    }
};

QTEST_MAIN(PruebaDiagramasPantallas)
#include "test_diagramas_pantallas.moc"
