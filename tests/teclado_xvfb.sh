#!/bin/bash
# Drives the real program on a virtual screen with the keyboard alone:
# start, search and centre Sirius, save a configuration, five time steps,
# save another, load the first back and save it again, then the wheel and
# a drag, and the exit with its confirmation. The saved files tell what
# happened; screenshots go to the output folder.
#   tests/teclado_xvfb.sh BUILD_DIR [OUTPUT_DIR]
# Needs Xvfb, openbox, xdotool and imagemagick (import).
set -u
BUILD=$(cd "${1:?build folder}" && pwd)
SALIDA=${2:-$(mktemp -d)}
mkdir -p "$SALIDA"
PANTALLA=:$((60 + RANDOM % 30))
ARCHIVO="$BUILD/Archivo"
fallos=0

falla() { echo "FALLO: $*"; fallos=$((fallos + 1)); }
foto() { DISPLAY=$PANTALLA import -window root "$SALIDA/$1.png"; }
tecla() { DISPLAY=$PANTALLA xdotool key --delay 120 "$@"; sleep 0.6; }
escribe() { DISPLAY=$PANTALLA xdotool type --delay 60 "$1"; sleep 0.4; }
espera_ventana() {  # title, seconds
    for _ in $(seq 1 $(($2 * 5))); do
        DISPLAY=$PANTALLA xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 && return 0
        sleep 0.2
    done
    return 1
}
espera_sin_ventana() {
    for _ in $(seq 1 $(($2 * 5))); do
        DISPLAY=$PANTALLA xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 || return 0
        sleep 0.2
    done
    return 1
}
dato() {  # file, item name: its value
    "$BUILD/vedrano-cli" configuracion --lee "$ARCHIVO/$1" | sed -n "s/^[0-9.]* $2 = //p"
}
limpia() {
    rm -f "$ARCHIVO"/"Teclado "[ABCD]*.ls1
    [ -n "${PROGRAMA:-}" ] && kill "$PROGRAMA" 2>/dev/null
    [ -n "${GESTOR:-}" ] && kill "$GESTOR" 2>/dev/null
    [ -n "${XVFB:-}" ] && kill "$XVFB" 2>/dev/null
}
trap limpia EXIT
limpia

Xvfb "$PANTALLA" -screen 0 1024x768x24 >/dev/null 2>&1 &
XVFB=$!
sleep 1
DISPLAY=$PANTALLA openbox >/dev/null 2>&1 &
GESTOR=$!
sleep 1
HOME="$SALIDA/casa" DISPLAY=$PANTALLA "$BUILD/vedrano" >"$SALIDA/vedrano.log" 2>&1 &
PROGRAMA=$!

espera_ventana '^VEDRANO 3.2$' 30 || falla "no aparece el saludo"
sleep 1
foto 01-saludo
tecla Return                       # the greeting's Aceptar
espera_sin_ventana '^VEDRANO 3.2$' 5 || falla "el saludo no se cierra con Intro"

tecla ctrl+f
espera_ventana '^Buscar Objetos$' 5 || falla "Ctrl+F no abre Buscar"
escribe "sirio"
foto 02-buscar
tecla Return                       # the line found, opened in its list
tecla Return                       # searched: centres and closes
espera_sin_ventana '^Buscar Objetos$' 5 || falla "Intro no centra Sirio"
foto 03-centrado

guarda() {  # name
    tecla ctrl+s
    espera_ventana '^Mantenimiento de configuraciones$' 5 || falla "Ctrl+S no abre las configuraciones"
    escribe "$1"
    tecla Tab Tab space            # past Cargar to Guardar, pressed
    tecla Escape
    espera_sin_ventana '^Mantenimiento de configuraciones$' 5 || falla "Esc no cierra las configuraciones"
    [ -f "$ARCHIVO/$1.ls1" ] || falla "no se guardó $1"
}
guarda "Teclado A"
tecla Next Next Next Next Next      # five time steps forward
guarda "Teclado B"

tecla ctrl+o
espera_ventana '^Mantenimiento de configuraciones$' 5 || falla "Ctrl+O no abre las configuraciones"
escribe "Teclado A"
tecla Tab space                    # Cargar
tecla Escape
guarda "Teclado C"

# The mouse: two wheel notches up at the centre, then a drag.
DISPLAY=$PANTALLA xdotool mousemove 520 340 click 4 click 4
sleep 0.8
DISPLAY=$PANTALLA xdotool mousedown 1 mousemove 560 340 mousemove 600 350 mousemove 640 360 mouseup 1
sleep 0.8
foto 04-rueda-arrastre
guarda "Teclado D"

tecla ctrl+q
espera_ventana '^Salir de VEDRANO$' 5 || falla "Ctrl+Q no pregunta"
foto 05-salir
tecla Return
for _ in $(seq 1 25); do kill -0 "$PROGRAMA" 2>/dev/null || break; sleep 0.2; done
kill -0 "$PROGRAMA" 2>/dev/null && falla "el programa no termina"

# What the files say.
python3 - "$(dato "Teclado A.ls1" FechaJuliana)" "$(dato "Teclado B.ls1" FechaJuliana)" \
    "$(dato "Teclado C.ls1" FechaJuliana)" "$(dato "Teclado D.ls1" FechaJuliana)" \
    "$(dato "Teclado A.ls1" Direccion)" "$(dato "Teclado A.ls1" Elevacion)" "$(dato "Teclado A.ls1" Latitud)" \
    "$(dato "Teclado C.ls1" Zoom)" "$(dato "Teclado D.ls1" Zoom)" \
    "$(dato "Teclado C.ls1" Direccion)" "$(dato "Teclado D.ls1" Direccion)" <<'EOF' || fallos=$((fallos + 1))
import math, sys
a, b, c, d, direccion, elevacion, latitud, zc, zd, dc, dd = (float(x) if x else float("nan") for x in sys.argv[1:])
dec_sirio = math.radians(-16.716)
problemas = []
if abs(direccion - math.pi) > 1e-6: problemas.append(f"Sirio no queda al sur: {direccion}")
if abs(elevacion - (dec_sirio - latitud + math.pi / 2)) > math.radians(0.5): problemas.append(f"elevación {elevacion}")
if abs((b - a) * 1440 - 5) > 0.01: problemas.append(f"cinco pasos no son cinco minutos: {(b - a) * 1440}")
if c != a: problemas.append("la configuración cargada no es la guardada")
if d != c: problemas.append("la rueda o el arrastre movieron la hora")
if abs(zd - zc - 1.0) > 1e-6: problemas.append(f"la rueda no sube el zoom un punto: {zc} -> {zd}")
if dd == dc: problemas.append("el arrastre no giró la vista")
for p in problemas: print("FALLO:", p)
print(f"A: JD {a}  dirección {math.degrees(direccion):.1f}  elevación {math.degrees(elevacion):.2f}")
print(f"B - A = {(b - a) * 1440:.3f} minutos; C = A: {c == a}; zoom {zc} -> {zd}; dirección {math.degrees(dc):.2f} -> {math.degrees(dd):.2f}")
sys.exit(1 if problemas else 0)
EOF

echo "capturas en $SALIDA"
if [ "$fallos" -eq 0 ]; then echo "BIEN: el programa se maneja con el teclado"; else echo "$fallos fallos"; fi
exit $((fallos > 0))
