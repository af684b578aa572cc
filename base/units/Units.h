// Units.h - the units subsystem: the unit table, the display formats, the
// catalogue of selectable units, their settings and the texts of values in
// the user's units.
#pragma once

#include <base/units/CVexUnitCnv.h>
#include <base/units/StaticFormats.h>
#include <base/units/UnitDefinition.h>
#include <base/units/UnitSettings.h>
#include <base/units/UnitText.h>
