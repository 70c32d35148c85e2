// A header of Qt's widgets, or of any Qt, in plain C++, however it is spelled.
#include <QLabel>
#include <QtWidgets/QLabel>
#include <QtWidgets>
#include <qlabel.h>
#include <QtWidgets/qlabel.h>
#include <QtPrintSupport/QPrinter>
#include <QPrintDialog>
#include <QSlider>
#include <QListWidget>
#include <qstring.h>
#include <string>
