#include "ui/controles/Accesible.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QWidget>

namespace vedrano::controles {

namespace {

class InterfazControl : public QAccessibleWidget {
public:
    InterfazControl(QWidget* w, const Accesible* a) : QAccessibleWidget(w, a->rolAccesible()), a_(a) {}

    QString text(QAccessible::Text t) const override {
        switch (t) {
            case QAccessible::Name: {
                const QString propio = widget()->accessibleName();
                return propio.isEmpty() ? a_->nombreAccesible() : propio;
            }
            case QAccessible::Value: return a_->valorAccesible();
            case QAccessible::Description: {
                const QString d = widget()->accessibleDescription();
                return d.isEmpty() ? widget()->toolTip().trimmed() : d;
            }
            default: return QAccessibleWidget::text(t);
        }
    }

    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        if (a_->marcable()) {
            s.checkable = true;
            s.checked = a_->marcado();
        }
        return s;
    }

private:
    const Accesible* a_;
};

QAccessibleInterface* Fabrica(const QString&, QObject* objeto) {
    auto* w = qobject_cast<QWidget*>(objeto);
    if (!w) return nullptr;
    if (const auto* a = dynamic_cast<const Accesible*>(w)) return new InterfazControl(w, a);
    return nullptr;
}

}  // namespace

void InstalaAccesibilidad() {
    static const bool instalada = [] {
        QAccessible::installFactory(Fabrica);
        return true;
    }();
    (void)instalada;
}

void AvisaValor(QWidget* w) {
    if (!QAccessible::isActive()) return;
    const auto* a = dynamic_cast<const Accesible*>(w);
    if (!a) return;
    QAccessibleValueChangeEvent ev(w, a->valorAccesible());
    QAccessible::updateAccessibility(&ev);
}

void PintaFoco(QPainter& p, const QRect& area) {
    p.save();
    QPen pluma(Qt::black, 1, Qt::DotLine);
    p.setPen(pluma);
    p.setBrush(Qt::NoBrush);
    p.drawRect(area.adjusted(1, 1, -2, -2));
    p.restore();
}

bool EsTeclaPulsar(int tecla) { return tecla == Qt::Key_Space || tecla == Qt::Key_Return || tecla == Qt::Key_Enter; }

}  // namespace vedrano::controles
