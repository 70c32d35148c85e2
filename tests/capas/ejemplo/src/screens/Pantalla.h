// A screen, below the shell only.
#pragma once
#include <QWidget>
#include "reports/qt/Dialogo.h"
#include "shell/Principal.h"
