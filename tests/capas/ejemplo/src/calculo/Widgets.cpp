// A header of Qt's widgets in the batch command, however it is spelled.
#include <QLabel>
#include <QtWidgets/QLabel>
#include <QtWidgets>
#include <qlabel.h>
#include <QtWidgets/qlabel.h>
#include <QtPrintSupport/QPrinter>
#include <QPrintDialog>
#include <QSlider>
#include <QListWidget>
