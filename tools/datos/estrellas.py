"""VDRDAT1.DAT (all stars) and VDRDAT2.DAT (stars with designations).

VDRDAT1 record (18 bytes): magnitude Single, kind Integer, direction.
VDRDAT2 record (44 bytes): designation String*8, name String*10, RA, Dec
and magnitude Singles, kind Integer, direction.
Both are sorted by magnitude, then Hipparcos number.

Kind = 1 when variable + 2 when multiple, with the rules below, chosen so
that the legend's classes mean something at the eyepiece.
"""
import os
import re
import struct

from . import binario

NUM_ESTRELLAS = 26520
NUM_ESTRELLAS_NOMBRE = 2583
# Variable: a GCVS star whose range reaches this many magnitudes, enough to
# be seen by comparing with neighbouring stars by eye.
AMPLITUD_MINIMA = 0.3
# Multiple: a WDS pair wider than a 60 mm telescope resolves (Dawes 116/60)
# and not so wide that the companion is usually an unrelated field star, or
# a star Hipparcos found multiple.
SEPARACION_MINIMA = 2.0
SEPARACION_MAXIMA = 60.0

# Proper names longer than the 10-character field, written short; any other
# longer name is left out rather than cut at random.
NOMBRES_CORTOS = {
    'Rigil Kentaurus': 'Rigil Kent',
    'Estrella Polar': 'Polar',
    'Miaplacidus': 'Miaplacid.',
    'Kaus Australis': 'Kaus Aust.',
    'Kaus Borealis': 'Kaus Bor.',
    'Zubeneschamali': 'Zubenesch.',
    'Kornephoros': 'Kornephor.',
    'Vindemiatrix': 'Vindemiat.',
    'Deneb Algedi': 'Deneb Alg.',
    'Tania Australis': 'Tania Aus.',
    'Tania Borealis': 'Tania Bor.',
    'Yed Posterior': 'Yed Post.',
    'Kaffaljidhma': 'Kaffaljid.',
    'Alula Borealis': 'Alula Bor.',
    'Alula Australis': 'Alula Aus.',
    'Baten Kaitos': 'Baten Kait',
    'Prima Hyadum': 'Prima Hyad',
    'Secunda Hyadum': 'Sec. Hyad.',
    'Asellus Australis': 'Asellus A.',
    'Asellus Borealis': 'Asellus B.',
    'La Estrella de Garnet': 'Granate',
    'Zubenelgenubi II': 'Zubenelg.',
}


def _es_variable(fila):
    amplitud = fila['gcvs_amplitude']
    return bool(fila['gcvs_name']) and amplitud != '' and float(amplitud) >= AMPLITUD_MINIMA


def _es_multiple(fila):
    if not fila['wds_id']:
        return False
    separacion = float(fila['wds_sep_arcsec']) if fila['wds_sep_arcsec'] else 999.9
    return SEPARACION_MINIMA <= separacion <= SEPARACION_MAXIMA or fila['hip_mult_kstars'] == '1'


def tipo(fila):
    return (1 if _es_variable(fila) else 0) + (2 if _es_multiple(fila) else 0)


def _maximos_mira(fuentes):
    """GCVS visual maxima of the Mira variables, by Hipparcos number: a
    Mira is shown as it is seen at its best (Mira 2.0, chi Cyg 3.3), not at
    the catalogue's mean."""
    maximos = {}
    with open(os.path.join(fuentes, 'estrellas', 'gcvs_hip_part.dat'), encoding='utf-8') as f:
        for linea in f:
            c = linea.rstrip('\n').split('\t')
            if len(c) > 7 and c[2] == 'M' and c[7] == 'V' and c[3]:
                maximos[c[0]] = c[3]
    return maximos


def _con_maximos(fuentes, filas):
    maximos = _maximos_mira(fuentes)
    for f in filas:
        if f['hip'] in maximos and f['vmag']:
            f['vmag'] = maximos[f['hip']]
    return filas


def _orden(fila):
    return (float(fila['vmag']), int(fila['hip']))


def estrellas(fuentes):
    filas = _con_maximos(fuentes, binario.lee_csv(os.path.join(fuentes, 'estrellas', 'estrellas_hip_v8.csv')))
    filas.sort(key=_orden)
    return filas


def _constelacion(d):
    return d.split(';')[0].strip().split(' ')[-1]


def designacion(fila):
    """Bayer (Latin letters), else Flamsteed, else the variable-star name,
    in at most 8 characters: a component letter and then the blank go first.
    A Bayer letter of another constellation than the star's Flamsteed number
    is an old one the star no longer bears ("Ups Per" of 51 And)."""
    for campo in ('bayer_latin', 'flamsteed', 'gcvs_latin'):
        if campo == 'bayer_latin' and fila['flamsteed'] and fila['bayer_latin'] \
                and _constelacion(fila['bayer_latin']) != _constelacion(fila['flamsteed']):
            continue
        if fila[campo]:
            d = fila[campo].split(';')[0].strip()
            partes = d.split(' ')
            if len(d) > 8 and len(partes) == 3 and len(partes[2]) == 1:
                d = partes[0] + ' ' + partes[1]
            if len(d) > 8:
                d = d.replace(' ', '')
            return d
    return ''


def _nombre_propio(fila):
    n = fila['name_es'] or fila['name']
    if len(n) > 10:
        n = NOMBRES_CORTOS.get(n, '')
    return n


ROMANO = re.compile(r' [IVX]+$')


def nombres_unicos(filas):
    """The proper name each star keeps: one star per name (the one the IAU
    approved, else the brightest), and no numbered members of an old
    asterism ("Alrial III", "Almizan I") unless the IAU took the name."""
    dueno = {}
    for f in sorted(filas, key=_orden):
        n = _nombre_propio(f)
        if not n or (ROMANO.search(n) and f['name_iau'] != '1'):
            continue
        if n not in dueno or (f['name_iau'] == '1' and dueno[n]['name_iau'] != '1'):
            dueno[n] = f
    return {f['hip']: n for n, f in dueno.items()}


def nombre(fila, unicos):
    return unicos.get(fila['hip'], '')


def con_nombre(fuentes, tipos):
    """The brightest stars to V 8 with a designation or a proper name."""
    filas = _con_maximos(fuentes, binario.lee_csv(os.path.join(fuentes, 'estrellas', 'estrellas_designaciones.csv')))
    filas = [f for f in filas if f['vmag'] and f['hip'] in tipos]
    unicos = nombres_unicos(filas)
    filas = [f for f in filas if designacion(f) or nombre(f, unicos)]
    filas.sort(key=_orden)
    return filas[:NUM_ESTRELLAS_NOMBRE], unicos


def escribe_vdrdat1(fuentes, salida):
    filas = estrellas(fuentes)[:NUM_ESTRELLAS]
    registros = []
    for f in filas:
        ar, dec = binario.grados(f['ra_deg'], f['dec_deg'])
        registros.append(binario.simple(float(f['vmag'])) + binario.entero(tipo(f))
                         + binario.vector(ar, dec))
    binario.escribe(salida, 'VDRDAT1.DAT', registros, 18)
    return [float(f['vmag']) for f in filas]


def escribe_vdrdat2(fuentes, salida):
    tipos = {f['hip']: tipo(f) for f in estrellas(fuentes)}
    filas, unicos = con_nombre(fuentes, tipos)
    registros = []
    for f in filas:
        ar, dec = binario.grados(f['ra_deg'], f['dec_deg'])
        registros.append(binario.texto(designacion(f), 8) + binario.texto(nombre(f, unicos), 10)
                         + binario.simple(ar) + binario.simple(dec)
                         + binario.simple(float(f['vmag'])) + binario.entero(tipos[f['hip']])
                         + binario.vector(ar, dec))
    binario.escribe(salida, 'VDRDAT2.DAT', registros, 44)
    return [float(f['vmag']) for f in filas]


def _movimientos(fuentes):
    """Hipparcos proper motions by HIP number: (mu_alpha cos delta, mu_delta)
    in milliarcseconds per year."""
    ruta = os.path.join(fuentes, 'estrellas', 'movimientos_propios_hip.tsv')
    return {f['hip']: (float(f['pmra_mas_yr']), float(f['pmdec_mas_yr']))
            for f in binario.lee_csv(ruta, separador='\t')}


def escribe_vdrdatn(fuentes, salida, hips_figuras):
    """VDRDATN.DAT: the proper motions of the stars of VDRDAT1, VDRDAT2 and
    of the figure points of VDRDATB, each table in its own record order.

        header   "VDRN", version (u16 = 1), 0 (u16), the three record
                 counts (3 x u32)
        records  mu_alpha cos delta and mu_delta, mas per Julian year
                 (2 x f32); 0 and 0 for a star without one

    The classic files stay as they are: the program reads this one when it
    is there and draws the stars at J2000 when it is not."""
    movimientos = _movimientos(fuentes)
    tipos = {f['hip']: tipo(f) for f in estrellas(fuentes)}
    tablas = [[f['hip'] for f in estrellas(fuentes)[:NUM_ESTRELLAS]],
              [f['hip'] for f in con_nombre(fuentes, tipos)[0]],
              hips_figuras]
    cabecera = b'VDRN' + struct.pack('<HH3I', 1, 0, *(len(t) for t in tablas))
    registros = [struct.pack('<2f', *movimientos.get(h, (0.0, 0.0))) for t in tablas for h in t]
    binario.escribe(salida, 'VDRDATN.DAT', [cabecera + b''.join(registros)],
                    len(cabecera) + 8 * len(registros))
