// The main window's interface state: the flags of its repeat loops and of
// its exit, and its real-time clock's count. The window owns it; a form
// reaches it through its ContextoDialogo.
#pragma once
#include <cstdint>

namespace vedrano {

struct EstadoVentana {
    // The hold and latch of the arrow pairs' repeat: clearing Sujecion ends
    // the loop; Enganche keeps a started animation going after the release.
    bool Sujecion = false, Enganche = false;
    // Cleared around a recomputation so that no redraw uses half-updated values.
    bool RedibujoPermitido = true;
    // The exit was confirmed: closing the window goes through.
    bool SalidaConfirmada = false;
    // Ticks of the real-time clock since its last minute.
    int16_t ContadorTiempoReal = 0;
};

}  // namespace vedrano
