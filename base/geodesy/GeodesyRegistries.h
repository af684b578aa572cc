// GeodesyRegistries.h - geoid models, the registries of the run-time
// geodesy library's types, its loader, alerts and the geodetic key tables.
#pragma once

#include <base/geodesy/GeodesyKeys.h>
#include <base/geodesy/GeoidModel.h>
#include <base/geodesy/GeoidModelICreator.h>
#include <base/geodesy/GeoidModelList.h>
#include <base/geodesy/ReportAlert.h>
#include <base/geodesy/VexGeoCoordSysBase.h>
#include <base/geodesy/VexGeoCoordSysList.h>
#include <base/geodesy/VexGeoCoordSysLoader.h>
#include <base/geodesy/VexGeoDatabaseBase.h>
#include <base/geodesy/VexGeoDatabaseBaseList.h>
#include <base/geodesy/VexGeoStaticDataBase.h>
#include <base/geodesy/VexGeoStaticDatabaseList.h>
