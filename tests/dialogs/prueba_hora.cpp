// The date and time form: the correction rules of each typed field, the
// AM/PM rules, the instant rebuilt from Universal and local rows, the
// Julian-day field, noon, midnight and the present in a zone with summer
// time, and the step keys held down, with the missing year 0.
#include <gtest/gtest.h>

#include <ctime>

#include <QDateTime>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include "app/base/TablasControles.h"
#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "../Ayudas.h"
#include "../ui/EntornoQt.h"
#include "ContextoPrueba.h"
#include "../ui/Falsos.h"
#include "app/base/Texto1252.h"
#include "astro/Calendario.h"
#include "dialogs/Hora.h"
#include "app/acciones/HoraReglas.h"
#include "ui/controles/Interruptor.h"
#include "ui/controles/Pulsador.h"
#include "ui/controles/Spin.h"
#include "ui/controles/TeclaAD.h"

using namespace vedrano;
using pruebas::Clic;
using pruebas::Raton;

namespace {

// Days since 30 December 1899 of a Julian day (the clock's reading).
double Reloj(double jd) { return jd - 2415018.5; }

double Juliana(int ano, int mes, int dia, int hora, int minuto) {
    return FechaAJuliana(ArmaCadenaFecha(ano, mes, dia, hora, minuto));
}

// Types `texto` over the whole field and leaves it with Enter or, when
// `saliendo`, by losing the focus.
void Escribe(QLineEdit* campo, const QString& texto, bool saliendo = false) {
    pruebas::EscribeEncima(campo, texto);
    if (saliendo) {
        QFocusEvent fuera(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(campo, &fuera);
    } else {
        pruebas::Tecla(campo, Qt::Key_Return);
    }
}

// One press of a step key held for `pasos` steps.
void PulsaTecla(controles::TeclaAD* t, pruebas::Falsos& f, controles::Contexto& controles, bool arriba, int pasos) {
    const QPoint p(t->width() / 2, arriba ? 8 : 20);
    int vistos = 0;
    f.reloj.alDormir = [&](int) {
        if (++vistos >= pasos) controles.SujecionSpin = false;
    };
    Raton(t, QEvent::MouseMove, p);
    Raton(t, QEvent::MouseButtonPress, p);
    Raton(t, QEvent::MouseButtonRelease, p);
    f.reloj.alDormir = nullptr;
}

TEST(ReglasHora, Ano) {
    EXPECT_EQ(CorrigeAno("-5000").texto, "-4713");
    EXPECT_EQ(CorrigeAno("9000").texto, " 7999");
    EXPECT_EQ(CorrigeAno("99999999999999999999999").ano, 7999);
    EXPECT_EQ(CorrigeAno("").texto, "    0");
    EXPECT_EQ(CorrigeAno("  ").ano, 0);
    EXPECT_EQ(CorrigeAno("-").ano, -1);
    EXPECT_EQ(CorrigeAno("abc").ano, 0);
    EXPECT_EQ(CorrigeAno("1984abc").ano, 1984);
    EXPECT_EQ(CorrigeAno(" -44 ").texto, "  -44");
}

TEST(ReglasHora, DiaYMes) {
    EXPECT_EQ(CorrigeMes("13").texto, "12");
    EXPECT_EQ(CorrigeMes("0").texto, "01");
    EXPECT_EQ(CorrigeMes("").valor, 1);
    EXPECT_EQ(CorrigeDia("31", 4, 2001).texto, "30");
    EXPECT_EQ(CorrigeDia("31", 11, 2001).texto, "30");
    EXPECT_EQ(CorrigeDia("31", 12, 2001).texto, "31");
    EXPECT_EQ(CorrigeDia("32", 1, 2001).texto, "31");
    EXPECT_EQ(CorrigeDia("0", 1, 2001).texto, "01");
    EXPECT_EQ(CorrigeDia("x", 1, 2001).texto, "01");
    EXPECT_EQ(CorrigeDia("30", 2, 2000).texto, "29");
    EXPECT_EQ(CorrigeDia("30", 2, 2001).texto, "28");
    EXPECT_EQ(CorrigeDia("29", 2, 1900).texto, "28");  // Gregorian century
    EXPECT_EQ(CorrigeDia("29", 2, 1500).texto, "29");  // Julian rule
    EXPECT_EQ(CorrigeDia("29", 2, -1).texto, "29");    // 1 BC was a leap year
    EXPECT_EQ(CorrigeDia("29", 2, -2).texto, "28");
}

TEST(ReglasHora, HorasEn24yAmPm) {
    EXPECT_EQ(CorrigeHora("25:61", true).texto, "23:59");
    EXPECT_EQ(CorrigeHora("-3:-5", true).texto, "00:00");
    EXPECT_EQ(CorrigeHora("7.5", true).texto, "07:05");
    EXPECT_EQ(CorrigeHora("1530", true).texto, "15:30");
    EXPECT_EQ(CorrigeHora("", true).texto, "00:00");
    EXPECT_EQ(CorrigeHora("abc", true).texto, "00:00");

    const HoraCorregida p = CorrigeHora("3:5 p", false);
    EXPECT_EQ(p.texto, "03:05 PM");
    EXPECT_EQ(p.horaDelDia(), 15);
    EXPECT_EQ(CorrigeHora("00:30 PM", false).horaDelDia(), 12);  // the half hour after noon
    EXPECT_EQ(CorrigeHora("10:00", false).texto, "10:00 AM");
}

class FormaHora : public ::testing::Test, public pruebas::ContextoSolo {};

TEST_F(FormaHora, AnoQueDejaDeSerBisiestoYTreintaYUnoDeFebrero) {
    FijaFechaJuliana(e, c.TablaPlanetas, Juliana(2000, 2, 29, 12, 0));
    Hora h(ctx);
    EXPECT_EQ(h.dia(0)->text(), "29");
    Escribe(h.ano(0), "2001");
    EXPECT_EQ(h.dia(0)->text(), "28");
    EXPECT_DOUBLE_EQ(e.FechaJuliana, 2451969.0);  // 28 February 2001, 12:00
    EXPECT_TRUE(e.Cambiado);

    Escribe(h.dia(0), "31", true);  // left by the focus
    EXPECT_EQ(h.dia(0)->text(), "28");
    Escribe(h.mes(0), "4");
    Escribe(h.dia(0), "31");
    EXPECT_EQ(h.dia(0)->text(), "30");
    EXPECT_EQ(h.mes(0)->text(), "04");
    EXPECT_DOUBLE_EQ(e.FechaJuliana, Juliana(2001, 4, 30, 12, 0));
}

TEST_F(FormaHora, EntradasMalas) {
    FijaFechaJuliana(e, c.TablaPlanetas, Juliana(2000, 1, 1, 12, 0));
    Hora h(ctx);
    // The rules' corrections are shown (the rules themselves are tested
    // above); an empty year reads 0, which the calendar takes as 1 AD.
    Escribe(h.ano(0), "-5000");
    EXPECT_EQ(h.ano(0)->text().trimmed(), "-4713");
    Escribe(h.ano(0), "");
    EXPECT_EQ(h.ano(0)->text().trimmed(), "1");
    EXPECT_DOUBLE_EQ(e.FechaJuliana, 1721424.0);  // 1 January 1 AD, 12:00
    Escribe(h.ano(0), "2000");
    Escribe(h.hora(0), "99999999999999999999:7");
    EXPECT_EQ(h.hora(0)->text(), "23:07");
    EXPECT_DOUBLE_EQ(e.FechaJuliana, Juliana(2000, 1, 1, 23, 7));

    // The Julian-day field: a decimal comma, a number past the range, and
    // a text with no number, which changes nothing.
    Escribe(h.juliano(), "2451545,5");
    EXPECT_EQ(h.dia(0)->text(), "02");
    EXPECT_EQ(h.hora(0)->text(), "00:00");
    EXPECT_EQ(h.juliano()->text(), "2451545,500000");  // as the main window's panel shows it
    Escribe(h.juliano(), "1e30");
    EXPECT_EQ(h.ano(0)->text().trimmed(), "7999");
    EXPECT_EQ(h.hora(0)->text(), "23:59");
    Escribe(h.juliano(), "-7");
    EXPECT_EQ(h.ano(0)->text().trimmed(), "-4713");
    EXPECT_EQ(h.hora(0)->text(), "00:00");
    const double antes = e.FechaJuliana;
    Escribe(h.juliano(), "hoy");
    EXPECT_EQ(e.FechaJuliana, antes);
    EXPECT_FALSE(h.juliano()->text().isEmpty());
}

TEST_F(FormaHora, FilaLocalConZonaYVerano) {
    FijaFechaJuliana(e, c.TablaPlanetas, Juliana(2000, 1, 1, 12, 0));
    FijaLugar(e, c.TablaPlanetas, {e.Longitud, e.Latitud, 1, true});
    Hora h(ctx);
    EXPECT_EQ(h.hora(1)->text(), "14:00");
    Escribe(h.hora(1), "14:30");
    EXPECT_DOUBLE_EQ(e.FechaJuliana, Juliana(2000, 1, 1, 12, 30));
    EXPECT_EQ(h.hora(0)->text(), "12:30");

    // Summer time off: the local row moves back an hour, the instant stays.
    Clic(h.verano(), QPoint(5, 5));
    EXPECT_FALSE(e.HorarioVerano);
    EXPECT_EQ(h.hora(1)->text(), "13:30");
    EXPECT_DOUBLE_EQ(e.FechaJuliana, Juliana(2000, 1, 1, 12, 30));

    // A zone typed into the spin field.
    Escribe(h.zona()->campo(), "-5");
    EXPECT_FLOAT_EQ(e.ZonaHoraria, -5.0f);
    EXPECT_EQ(h.hora(1)->text(), "07:30");
}

TEST_F(FormaHora, AmPm) {
    e.FormatoHora = 2;
    FijaFechaJuliana(e, c.TablaPlanetas, Juliana(2000, 1, 1, 12, 30));
    Hora h(ctx);
    EXPECT_EQ(h.hora(0)->text(), "00:30 PM");
    Escribe(h.hora(0), "11:45 P");
    EXPECT_EQ(h.hora(0)->text(), "11:45 PM");
    EXPECT_DOUBLE_EQ(e.FechaJuliana, Juliana(2000, 1, 1, 23, 45));
    Escribe(h.hora(0), "15:70 X");
    EXPECT_EQ(h.hora(0)->text(), "11:59 AM");
    EXPECT_DOUBLE_EQ(e.FechaJuliana, Juliana(2000, 1, 1, 11, 59));
}

TEST_F(FormaHora, MediodiaMedianocheYAhoraConVerano) {
    // 15 July 2024, 07:20 UT: 09:20 in zone +1 with summer time (UT + 2).
    const double reloj = Reloj(2460506.5) + (7 * 60 + 20) / 1440.0;
    FijaLugar(e, c.TablaPlanetas, {e.Longitud, e.Latitud, 1, true});
    Hora h(ctx);
    h.setReloj([reloj] { return reloj; });

    h.pulsador(control::Mediodia)->pulsa();
    EXPECT_DOUBLE_EQ(e.FechaJuliana, 2460507.0 - 2.0 / 24);
    EXPECT_EQ(h.hora(1)->text(), "12:00");
    EXPECT_EQ(h.hora(0)->text(), "10:00");
    EXPECT_EQ(h.dia(0)->text(), "15");

    h.pulsador(control::Medianoche)->pulsa();
    EXPECT_EQ(h.hora(1)->text(), "00:00");
    EXPECT_EQ(h.dia(1)->text(), "15");
    EXPECT_EQ(h.hora(0)->text(), "22:00");
    EXPECT_EQ(h.dia(0)->text(), "14");

    Clic(h.pulsador(control::FechaHoraActuales), QPoint(20, 10));
    EXPECT_EQ(h.hora(1)->text(), "09:20");
    EXPECT_EQ(h.hora(0)->text(), "07:20");
    // Each press went down with sound 6 and came up with 7.
    EXPECT_EQ(f.sonidos.oidos, (std::vector<int>{6, 7, 6, 7, 6, 7}));
}

// The present is the system's Universal Time, whatever zone the computer
// keeps: here the computer is at UT + 7 and the observer at UT - 2.
TEST_F(FormaHora, AhoraNoDependeDeLaZonaDelOrdenador) {
    const QByteArray tzAntes = qgetenv("TZ");
    qputenv("TZ", "XST-7");
    tzset();
    FijaLugar(e, c.TablaPlanetas, {e.Longitud, e.Latitud, -3, true});
    auto utAhora = [] { return QDateTime::currentMSecsSinceEpoch() / 86400000.0 + 2440587.5; };
    {
        Hora h(ctx);
        const double antes = utAhora();
        h.pulsador(control::FechaHoraActuales)->pulsa();
        const double despues = utAhora();
        EXPECT_GE(e.FechaJuliana, antes - 0.5 / 1440) << "cut to the minute, never earlier than that";
        EXPECT_LE(e.FechaJuliana, despues + 0.5 / 1440);
        // The local row is two hours behind the Universal one.
        const int uni = h.hora(0)->text().left(2).toInt(), loc = h.hora(1)->text().left(2).toInt();
        EXPECT_EQ((uni - loc + 24) % 24, 2);

        // Late on 10 March 2024 UT it is already 11 March for an observer at
        // UT + 2: today's noon is 11 March, 10:00 UT.
        FijaLugar(e, c.TablaPlanetas, {e.Longitud, e.Latitud, 1, e.HorarioVerano});
        h.setReloj([] { return Reloj(2460379.5) + 23.5 / 24; });
        h.pulsador(control::Mediodia)->pulsa();
        EXPECT_NEAR(e.FechaJuliana, 2460380.5 + 10.0 / 24, 1e-9);
        h.pulsador(control::Medianoche)->pulsa();
        EXPECT_NEAR(e.FechaJuliana, 2460379.5 + 22.0 / 24, 1e-9);  // 00:00 of 11 March local
    }
    if (tzAntes.isNull())
        qunsetenv("TZ");
    else
        qputenv("TZ", tzAntes);
    tzset();
}

TEST_F(FormaHora, PasosDeAnoSinAnoCero) {
    e.TipoPaso = 1;
    FijaFechaJuliana(e, c.TablaPlanetas, Juliana(1, 1, 1, 12, 0));
    Hora h(ctx);
    PulsaTecla(h.tecla(4), f, controles, false, 1);
    EXPECT_EQ(h.ano(0)->text().trimmed(), "-1");
    EXPECT_DOUBLE_EQ(e.FechaJuliana, 1721058.0);  // 1 January 1 BC, a leap year before 1 AD
    EXPECT_EQ(e.TeclaPaso, 5);
    PulsaTecla(h.tecla(4), f, controles, true, 1);
    EXPECT_EQ(h.ano(0)->text().trimmed(), "1");
    // A century back from 100 AD lands on 1 BC as well.
    Escribe(h.ano(0), "100");
    PulsaTecla(h.tecla(5), f, controles, false, 1);
    EXPECT_EQ(h.ano(0)->text().trimmed(), "-1");
    // A millennium held down stops at the first year.
    PulsaTecla(h.tecla(6), f, controles, false, 8);
    EXPECT_EQ(h.ano(0)->text().trimmed(), "-4713");
    EXPECT_EQ(h.dia(0)->text(), "01");
}

TEST_F(FormaHora, TeclaSostenidaYPasosSidereos) {
    FijaFechaJuliana(e, c.TablaPlanetas, Juliana(2000, 1, 1, 12, 0));
    Hora h(ctx);
    Clic(h.siderales(), QPoint(5, 5));
    EXPECT_EQ(e.TipoPaso, 0);
    EXPECT_FALSE(h.solares()->marcada());

    std::vector<bool> redibujo;
    const QPoint arriba(h.tecla(0)->width() / 2, 8);
    f.reloj.alDormir = [&](int n) {
        redibujo.push_back(ventana.RedibujoPermitido);
        if (n >= 3) controles.SujecionSpin = false;
    };
    Raton(h.tecla(0), QEvent::MouseMove, arriba);
    Raton(h.tecla(0), QEvent::MouseButtonPress, arriba);
    f.reloj.alDormir = nullptr;
    EXPECT_EQ(h.hora(0)->text(), "12:03");
    EXPECT_EQ(redibujo, (std::vector<bool>{false, false, false}));
    EXPECT_TRUE(ventana.RedibujoPermitido);
    EXPECT_EQ(f.sonidos.oidos, (std::vector<int>{4, 4, 4}));

    // A sidereal day, and a sidereal year (365 of them) backward.
    const double antes = e.FechaJuliana;
    PulsaTecla(h.tecla(2), f, controles, true, 1);
    EXPECT_NEAR(e.FechaJuliana - antes, 0.9972695664235, 1e-9);
    PulsaTecla(h.tecla(4), f, controles, false, 1);
    EXPECT_NEAR(e.FechaJuliana - antes, 0.9972695664235 - 365 * 0.9972695664235, 1e-8);
}

TEST_F(FormaHora, LoEscritoSinSalirNoSePierde) {
    FijaFechaJuliana(e, c.TablaPlanetas, Juliana(2000, 1, 1, 12, 0));
    Hora h(ctx);
    // Typed without leaving the field, then a step key: the year counts.
    pruebas::EscribeEncima(h.ano(0), "1999");
    PulsaTecla(h.tecla(2), f, controles, true, 1);  // one solar day
    EXPECT_DOUBLE_EQ(e.FechaJuliana, Juliana(1999, 1, 2, 12, 0));
}

}  // namespace
