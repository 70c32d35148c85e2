#pragma once
#include <QWidget>
#include "shell/Principal.h"
