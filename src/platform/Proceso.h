// The running process and others: its number, and whether a process of a
// given number is still alive (to tell a crashed writer's leftovers from a
// file another program is writing now).
#pragma once

namespace vedrano::plataforma {

// This process's number (getpid; GetCurrentProcessId on Windows).
long IdProceso();

// Whether a process of that number exists (kill with signal 0; OpenProcess
// and its exit code on Windows). A number that cannot be asked about counts
// as alive, so that nothing of it is touched.
bool ProcesoVivo(long id);

}  // namespace vedrano::plataforma
