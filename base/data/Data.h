// Data.h - data identity and data sources: the identifiers that name every
// datum (CDataId, CDataInfo), the lines of display data lists
// (CDataInfoEx, CDataInfoArray), lever-arm offsets (CCompOffset), the
// tree-item maps and the data-source interface (BaseDataSource).
#pragma once

#include <base/data/BaseDataSource.h>
#include <base/data/CCompOffset.h>
#include <base/data/CDataId.h>
#include <base/data/CDataInfo.h>
#include <base/data/CDataInfoArray.h>
#include <base/data/CDataInfoEx.h>
#include <base/data/DataTextAttribs.h>
#include <base/data/TreeItemMaps.h>
