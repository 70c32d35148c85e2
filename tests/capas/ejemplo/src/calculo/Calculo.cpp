// The batch command: Qt's core, painting and SVG only, never a widget.
#include "calculo/Calculo.h"
#include <QtCore/QString>
#include <qstring.h>
#include <QtCore>
#include <QtGui/QPainter>
#include <QSvgGenerator>
#include <qaction.h>
#include "screens/Pantalla.h"
#include "shell/Principal.h"
#include "diagrams/qt/Vista.h"
#include <QApplication>
#include <QNetworkAccessManager>
#include <QtSvgWidgets/QSvgWidget>
