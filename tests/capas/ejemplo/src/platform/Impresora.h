// An interface of the platform in plain C++.
#pragma once
#include "state/Otro.h"
