// Errors.h - error objects, error lists and the process-wide error list.
#pragma once

#include <base/errors/DaxError.h>
#include <base/errors/Error.h>
#include <base/errors/ErrorList.h>
#include <base/errors/ErrorMessageFile.h>
#include <base/errors/ErrorReporterBase.h>
#include <base/errors/ErrorString.h>
#include <base/errors/FileError.h>
#include <base/errors/FileObjectError.h>
#include <base/errors/GenericError.h>
#include <base/errors/GlobalErrorList.h>
