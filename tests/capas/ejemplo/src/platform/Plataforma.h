// An interface of the platform that brings Qt.
#pragma once
#include <QString>
#include "state/Otro.h"
