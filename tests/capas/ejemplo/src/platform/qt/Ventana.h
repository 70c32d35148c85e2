// The Qt implementation of the platform, which picks its Windows parts.
#pragma once
#include <QWidget>
#include "platform/Plataforma.h"
#include "platform/win/Registro.h"
