#pragma once
#include <QMainWindow>
