#include "dialogs/piezas/CampoAngulo.h"

#include <QFontMetrics>
#include <QLineEdit>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "app/base/Constantes.h"
#include "app/base/TablasControles.h"
#include "app/base/Texto1252.h"
#include "app/base/TextosAngulo.h"
#include "ui/controles/Estilo.h"

namespace vedrano {

QString CorrigeTeclas(const QString& texto, TipoAngulo tipo) {
    const QString letras = tipo == TipoAngulo::Longitud ? QStringLiteral("EOW") : QStringLiteral("NS");
    QString r;
    for (QChar c : texto) {
        QChar m = c.toUpper();
        if (c.isDigit() || QStringLiteral(" .,-+'\"\u00B0\u00BA").contains(c)) r += c;
        else if (letras.contains(m)) r += (m == 'W' ? QChar('O') : m);
    }
    return r;
}

std::optional<double> LeeCampoAngulo(const std::string& cp1252, TipoAngulo tipo) {
    const QString t = CorrigeTeclas(QString::fromStdString(DesdeA1252(cp1252)), tipo);
    static const QRegularExpression numero(QStringLiteral("\\d+(?:[.,]\\d*)?"));
    double partes[3] = {0, 0, 0};
    int n = 0;
    for (auto it = numero.globalMatch(t); it.hasNext() && n < 3; ++n) {
        QString s = it.next().captured();
        partes[n] = s.replace(',', '.').toDouble();
    }
    if (n == 0) return std::nullopt;
    // Minutes and seconds past 59 are taken as 59.
    double grados = partes[0] + std::min(partes[1], 59.0) / 60.0 + std::min(partes[2], 59.999) / 3600.0;
    const int primerDigito = static_cast<int>(t.indexOf(QRegularExpression(QStringLiteral("\\d"))));
    const bool menos = t.left(primerDigito).contains('-');
    double grad;
    std::string texto;
    if (tipo == TipoAngulo::Longitud) {
        const bool este = t.contains('E') || (menos && !t.contains('O'));
        grados = std::min(grados, 180.0);
        grad = este ? -grados : grados;
        texto = TextoLongitud(grad < 0 ? DOS_PI + grad * GRADO : grad * GRADO);
    } else {
        const bool sur = t.contains('S') || (menos && !t.contains('N'));
        grados = std::min(grados, 90.0);
        grad = sur ? -grados : grados;
        texto = TextoLatitud(grad * GRADO);
    }
    // The layout the field shows, read back as every angle text is.
    return LeeAngulo(texto);
}

SpinAngulo::SpinAngulo(controles::Contexto& ctx, int indice, int caracteres, QWidget* padre)
    : Spin(ctx, indice, padre), caracteres_(caracteres) {
    resize(sizeHint());
}

int SpinAngulo::anchoCampo() const {
    return QFontMetrics(controles::FuenteControles()).horizontalAdvance(QString(caracteres_, '0')) + 10;
}

QSize SpinAngulo::sizeHint() const {
    const QSize base = Spin::sizeHint();
    const int anchoBase = 7 * static_cast<int>(FormatoIndice(indice_).Formato.size()) + 12;
    return {base.width() - anchoBase + anchoCampo(), base.height()};
}

void SpinAngulo::resizeEvent(QResizeEvent* ev) {
    Spin::resizeEvent(ev);
    campo()->setGeometry(width() - anchoCampo() - 25, 5, anchoCampo(), 19);
}

}  // namespace vedrano
