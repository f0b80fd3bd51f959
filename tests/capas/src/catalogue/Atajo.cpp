// A catalogue file that reaches up to the main window: the include check
// must refuse it.
#include "catalogue/Atajo.h"
#include "ui/cielo/Ventana.h"
