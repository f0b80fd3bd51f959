"""Quasars (VDRDATK.DAT), pulsars (VDRDATL.DAT) and black holes
(VDRDATM.DAT): record of 32 bytes, name String*12, RA and Dec Singles,
direction.
"""
import os

from . import binario

# Quasars: every one to this visual magnitude, leaving out the Seyfert
# nuclei of NGC/IC galaxies, which are drawn as galaxies.
MAGNITUD_CUASARES = 15.0
# Pulsars: the classic ones (a B1950 name) bright at 400 MHz, and every one
# with a popular name.
FLUJO_PULSARES = 20.0
AGUJEROS = ('Sgr A*', 'Cygnus X-1', 'M87*')


def _nombre_cuasar(fila):
    """The catalogue name; one that does not fit 12 characters gives way to
    the coordinate name "Jhhmm+ddmm" built from the position."""
    nombre = fila['name']
    if nombre.endswith('.0'):
        nombre = nombre[:-2]
    if len(nombre) > 12:
        nombre = nombre.replace(' ', '')
    if len(nombre) > 12:
        ar, dec = fila['ra'], fila['dec']
        nombre = 'J' + ar[0:2] + ar[3:5] + dec[0:3] + dec[4:6]
    return nombre


def cuasares(fuentes):
    filas = binario.lee_csv(os.path.join(fuentes, 'exoticos', 'cuasares_stellarium_v17.csv'))
    elegidos = [f for f in filas if float(f['vmag']) <= MAGNITUD_CUASARES
                and not f['name'].startswith(('NGC', 'IC'))]
    elegidos.sort(key=lambda f: (float(f['vmag']), f['name']))
    return [(_nombre_cuasar(f),) + binario.horas_grados(f['ra'], f['dec'])
            for f in elegidos]


def pulsares(fuentes):
    filas = binario.lee_csv(os.path.join(fuentes, 'exoticos', 'pulsares_atnf.csv'))
    elegidos = []
    for f in filas:
        brillante = f['psrb'] and f['s400_mjy'] and float(f['s400_mjy']) >= FLUJO_PULSARES
        if brillante or f['name_stellarium']:
            nombre = f['psrb'] if f['psrb'] else f['psrj']
            elegidos.append((nombre,) + binario.grados(f['ra_deg'], f['dec_deg']))
    elegidos.sort(key=lambda e: (e[1], e[0]))
    return elegidos


def agujeros(fuentes):
    filas = {f['name']: f for f in binario.lee_csv(
        os.path.join(fuentes, 'exoticos', 'agujeros_negros.csv'))}
    return [(filas[n]['name_es'],) + binario.horas_grados(filas[n]['ra_hms'], filas[n]['dec_dms'])
            for n in AGUJEROS]


def _escribe(salida, nombre, objetos):
    registros = [binario.texto(n, 12) + binario.posicion(ar, dec) for n, ar, dec in objetos]
    return binario.escribe(salida, nombre, registros, 32)


def escribe_todos(fuentes, salida):
    return {'VDRDATK.DAT': _escribe(salida, 'VDRDATK.DAT', cuasares(fuentes)),
            'VDRDATL.DAT': _escribe(salida, 'VDRDATL.DAT', pulsares(fuentes)),
            'VDRDATM.DAT': _escribe(salida, 'VDRDATM.DAT', agujeros(fuentes))}
