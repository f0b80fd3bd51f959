#include "platform/CarpetaPrograma.h"

#include <QFile>
#include <QStandardPaths>
#include <filesystem>

namespace vedrano::plataforma {

std::string CarpetaPrograma(const char* argv0) {
    namespace fs = std::filesystem;
    std::error_code ec;
    // Linux names the running executable here; Windows would ask
    // GetModuleFileNameW.
    fs::path exe = fs::canonical("/proc/self/exe", ec);
    if (ec) exe = fs::absolute(argv0 ? argv0 : "", ec);
    const fs::path dir = exe.parent_path();
    for (const fs::path& candidata : {dir, dir.parent_path() / "share" / "vedrano"})
        if (fs::is_directory(candidata / "Datos", ec)) return candidata.string() + "/";
    const QString xdg = QStandardPaths::locate(QStandardPaths::GenericDataLocation, QStringLiteral("vedrano/Datos"),
                                               QStandardPaths::LocateDirectory);
    if (!xdg.isEmpty()) return fs::path(QFile::encodeName(xdg).toStdString()).parent_path().string() + "/";
    return dir.string() + "/";
}

}  // namespace vedrano::plataforma
