// The header of a layer the catalogue may not use.
#pragma once
