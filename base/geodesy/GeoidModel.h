// GeoidModel.h - the base class of the geoid and height models that turn
// ellipsoidal heights into heights above a vertical datum.
//
// Concrete models (grids, national transformations) derive from it and
// replace the calculations; the base class computes nothing, and its
// calculations return false with their outputs untouched. Angles are in the
// unit the concrete model documents. The coordinate system given to Init is
// borrowed, not owned, and must outlive the model's use of it.
//
//   std::unique_ptr<vex::GeoidModel> model(
//       vex::GeoidModelList::GetGeoidModelList().Create(u"EGM2008"));
//   model->Init(coordSys); model->SetFileName(u"egm2008.grd");
#pragma once

#include <base/Export.h>
#include <base/errors/Error.h>
#include <base/framework/CString.h>

#include <memory>

namespace vex {

class VexGeoCoordSysBase;

class VEXBASE_API GeoidModel {
  public:
    // No file, no datum, unit metres (factor 1.0, "m"), no coordinate system.
    GeoidModel() = default;
    GeoidModel(const GeoidModel&) = default;
    GeoidModel& operator=(const GeoidModel&) = default;
    virtual ~GeoidModel();

    // Remembers coordSys (may be null) and, when there is one, takes its
    // linear unit; a system that reports a factor of 0 means metres
    // (1.0, "m"). With no system the unit stays as it was. Returns true.
    virtual bool Init(VexGeoCoordSysBase* coordSys);
    // Stores the model's data file; true.
    virtual bool SetFileName(const CString& fileName);
    virtual void SetGeoidChartDatum(const CString& chartDatum);
    // Geoid separation (and a model-defined second value) at a position.
    virtual bool Calculate(double latitude, double longitude, double& separation, double& second,
                           bool flag);
    // The model-defined four-value form; message explains a failure.
    virtual bool Calculate(double first, double second, double third, double fourth, double& result,
                           CString& message);
    virtual bool CalculateLocalEllipsCorrection(double latitude, double longitude, double& first,
                                                double& second, bool flag);
    // Checks that the model's files are present under pathOrFile; the base
    // class has none to check: it empties message and returns true.
    virtual bool CheckGeoidModelFiles(const CString& pathOrFile, CString& message, bool flag);

    const CString& GetFileName() const { return m_fileName; }
    const CString& GetGeoidChartDatum() const { return m_geoidChartDatum; }
    double GetUnitFactor() const { return m_unitFactor; }
    const CString& GetUnitName() const { return m_unitName; }
    VexGeoCoordSysBase* GetCoordSys() const { return m_coordSys; }

    // Hands error to the application's alert sink (see ReportAlert.h):
    // the error's ID when a sink took it, else 0 with the error freed.
    static unsigned long long ReportAlert(std::unique_ptr<Error> error);
    static unsigned long long ReportAlert(const CString& text);

  private:
    CString m_fileName;
    CString m_geoidChartDatum;
    double m_unitFactor = 1.0;
    CString m_unitName = CString(u"m");
    VexGeoCoordSysBase* m_coordSys = nullptr;
};

}  // namespace vex
