// The stars' proper motions: VDRDATN.DAT, a file of the program's own
// beside the classic tables (tools/datos/estrellas.py describes it). It is
// never required: without it, or with a damaged one, every table keeps no
// motions and the stars stand at their J2000 places.
#pragma once
#include <cstddef>
#include <string>
#include <vector>

#include "astro/Vector3f.h"
#include "catalogue/Catalogos.h"
#include "app/base/InterfazMensajes.h"

namespace vedrano {

// CargaMovimientos
//   Given: dirDatos the data folder, ending in its separator; n where a
//          damaged file is told ("Cargando datos iniciales").
//   Fills c.MovEstrellas, c.MovEstrellasNombre and c.MovFiguras from
//   VDRDATN.DAT, all three or none: each the motion of the record of the
//   same index as a direction per Julian year (radians, the program's
//   frame), tangent to the record's direction. A missing file is no error.
void CargaMovimientos(const std::string& dirDatos, Catalogos& c, InterfazMensajes& n);

// MovimientoAnual
//   Given: v a unit direction, pmAR the motion along the parallel
//          (mu_alpha cos delta) and pmDec along the meridian, milliarcseconds
//          per year.
//   Returns the change of v in one year. At a pole (where east is not
//   defined) it returns no motion.
Vector3f MovimientoAnual(const Vector3f& v, double pmAR, double pmDec);

// MueveDireccion
//   Given: v a unit direction, movimiento its change per Julian year (as
//          MovimientoAnual gives it), anos the years from J2000.
//   Returns the direction at that date: on a straight line across the
//   sky's tangent plane, as a star of unknown distance and radial
//   velocity moves.
Vector3f MueveDireccion(const Vector3f& v, const Vector3f& movimiento, double anos);

// The directions of one table at a date: each record's own moved by its
// motion, or the record's as it stands when the table has no motions or
// `anos` is 0.
class DireccionesEnFecha {
public:
    DireccionesEnFecha(const std::vector<Vector3f>& movimientos, double anos)
        : mov_(movimientos), anos_(static_cast<float>(anos)) {}
    Vector3f operator()(std::size_t i, const Vector3f& v) const {
        if (anos_ == 0 || i >= mov_.size()) return v;
        return MueveDireccion(v, mov_[i], anos_);
    }

private:
    const std::vector<Vector3f>& mov_;
    float anos_;
};

}  // namespace vedrano
