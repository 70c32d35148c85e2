// A folder without a row in the table.
#pragma once
#include "state/Otro.h"
