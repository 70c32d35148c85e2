// State: includes nothing of the project outside itself.
#pragma once
#include <string>
