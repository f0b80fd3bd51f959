#include "app/base/TextosAngulo.h"

#include <cmath>

#include "app/base/Aritmetica.h"
#include "app/base/Constantes.h"
#include "app/base/Formato.h"
#include "app/base/Texto1252.h"

namespace vedrano {

namespace {

constexpr const char* RUMBOS = "N NEE SES SOO NO";

// The degree sign in Windows-1252, converted once.
const std::string& SignoGrado() {
    static const std::string signo = A1252("°");
    return signo;
}

// Degrees of an angle as the sexagesimal text counts them.
double GradosSexagesimales(double angulo) {
    // The 5e-7 rad lifts values that lie a hair below a whole second.
    double g = (std::fabs(angulo) + 5e-7) * RAD_A_GRADOS;
    if (g >= 360) g = g - 360;
    return g;
}

// A west-positive longitude as written: east of Greenwich when above pi.
bool AlEste(double& lon) {
    if (!(lon > PI)) return false;
    lon = DOS_PI - lon;
    return true;
}

}  // namespace

std::string TextoSexagesimal(double angulo) {
    std::string signo = angulo < 0 ? "-" : "";
    double g = GradosSexagesimales(angulo);
    double D = Int(g);
    double M = Int((g - D) * 60);
    double S = Int(((g - D) - M / 60) * 3600);
    return signo + Formato(D, "@@@") + SignoGrado() + Formato(M, " 00") + "'" + Formato(S, " 00") + "\"";
}

std::string TextoLatitud(double lat) {
    const char* sufijo = lat < 0 ? " S" : " N";
    return Right(TextoSexagesimal(std::fabs(lat)), 11) + sufijo;
}

int16_t GradosLongitud(double lon) {
    AlEste(lon);
    return CInt(Int(GradosSexagesimales(lon)));
}

std::string TextoLongitud(double lon) {
    double escrita = lon;
    const char* sufijo = AlEste(escrita) ? " E" : " O";
    std::string texto = TextoSexagesimal(escrita) + sufijo;
    // The whole degrees are a 16-bit number where the place's zone is
    // guessed from them; a longitude past that range is refused here too.
    GradosLongitud(lon);
    return texto;
}

std::string TextoHoras(float ar) {
    float g = ASingle(ar * RAD_A_GRADOS);
    double H = Int(g / 15.0);
    double M = Int((g - 15 * H) * 4);
    double S = std::nearbyint((g - 15 * H - M / 4) * 240);
    if (S > 59) {
        S = 0;
        M = M + 1;
    }
    if (M > 59) {
        M = 0;
        H = H + 1;
    }
    if (H > 23) H = 0;
    std::string texto = Formato(H, "@@@");
    texto.reserve(16);
    texto += 'h';
    texto += Formato(M, " 00");
    texto += 'm';
    texto += Formato(S, " 00");
    texto += 's';
    return texto;
}

std::string TextoDireccion(double az) {
    float a = ASingle(az + PI / 8);
    if (a >= DOS_PI_SIMPLE) a = 0;
    // A negative azimuth gives a sector below 1, which the string function
    // refuses (error 5); one too far below for any integer, or not a number,
    // is refused the same way before it is converted.
    double k = Int(a * RAD_A_GRADOS / 45) + 1;
    if (!(k >= 1)) throw ErrorEjecucion(ErrArgumentoInvalido);
    long sector = static_cast<long>(k);
    std::string rumbo = Mid(RUMBOS, 2 * sector - 1, 2);
    int16_t grados = CInt(az * RAD_A_GRADOS);
    return Formato(grados, "@@@") + SignoGrado() + " " + rumbo;
}

std::string TextoGrados(double angulo) {
    int16_t grados = CInt(angulo * RAD_A_GRADOS);
    return Formato(grados, "@@") + SignoGrado();
}

double LeeAngulo(std::string_view texto) {
    std::string t(texto);
    char ultimo = t.empty() ? ' ' : static_cast<char>(std::toupper(static_cast<unsigned char>(t.back())));
    double r;
    if (ultimo == 'E' || ultimo == 'O') {
        double grados = Val(Mid(t, 1, 3)), minutos = Val(Mid(t, 6, 2)), segundos = Val(Mid(t, 10, 2));
        r = (grados * 3600 + minutos * 60 + segundos) * SEGUNDO_ARCO_LECTURA;
        if (ultimo == 'E') r = DOS_PI - r;
    } else {
        double grados = Val(Mid(t, 1, 2)), minutos = Val(Mid(t, 5, 2)), segundos = Val(Mid(t, 9, 2));
        r = (grados * 3600 + minutos * 60 + segundos) * SEGUNDO_ARCO_LECTURA;
        if (ultimo == 'S') r = -r;
    }
    return r;
}

}  // namespace vedrano
