#include "platform/qt/Cursores.h"

#include <QFile>
#include <QHash>
#include <QPixmap>
#include <QTextStream>

namespace vedrano::plataforma {

namespace {

struct Propio {
    QString nombre;
    int x = 0, y = 0;
};

// The hot spots are kept beside the pictures, where the generator wrote them.
const QHash<int, Propio>& Propios() {
    static const QHash<int, Propio> tabla = [] {
        QHash<int, Propio> t;
        QFile f(QStringLiteral(":/cursores/puntos.txt"));
        if (!f.open(QIODevice::ReadOnly | QIODevice::Text)) return t;
        QTextStream in(&f);
        while (!in.atEnd()) {
            QString linea = in.readLine().trimmed();
            if (linea.isEmpty() || linea.startsWith('#')) continue;
            const QStringList partes = linea.split(' ', Qt::SkipEmptyParts);
            if (partes.size() != 4) continue;
            t.insert(partes[0].toInt(), Propio{partes[1], partes[2].toInt(), partes[3].toInt()});
        }
        return t;
    }();
    return tabla;
}

Qt::CursorShape Estandar(int numero) {
    switch (numero) {
        case 1: return Qt::ArrowCursor;
        case 2: return Qt::CrossCursor;
        case 3: return Qt::IBeamCursor;
        case 5: case 15: return Qt::SizeAllCursor;
        case 6: return Qt::SizeBDiagCursor;
        case 7: return Qt::SizeVerCursor;
        case 8: return Qt::SizeFDiagCursor;
        case 9: return Qt::SizeHorCursor;
        case 10: return Qt::UpArrowCursor;
        case 11: return Qt::WaitCursor;
        case 12: return Qt::ForbiddenCursor;
        case 13: return Qt::BusyCursor;
        case 14: return Qt::WhatsThisCursor;
        default: return Qt::ArrowCursor;
    }
}

}  // namespace

QCursor CursorNumero(int numero) {
    auto it = Propios().find(numero);
    if (it != Propios().end()) {
        QPixmap imagen(QStringLiteral(":/cursores/%1_%2.png").arg(numero).arg(it->nombre));
        if (!imagen.isNull()) return QCursor(imagen, it->x, it->y);
    }
    return QCursor(Estandar(numero));
}

}  // namespace vedrano::plataforma
