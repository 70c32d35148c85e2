// The printer dialog.
#pragma once
#include <QDialog>
#include <QtPrintSupport/QPrinter>
#include "reports/Informe.h"
