#pragma once
#include "state/Otro.h"
#include <vector>
