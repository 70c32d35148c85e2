// The main window, over everything but the batch command.
#pragma once
#include <QMainWindow>
