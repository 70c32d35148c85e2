#include "reports/Informe.h"
#include "shell/Principal.h"
