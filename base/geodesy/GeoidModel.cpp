#include <base/geodesy/GeoidModel.h>

#include <base/geodesy/ReportAlert.h>
#include <base/geodesy/VexGeoCoordSysBase.h>

#include <utility>

namespace vex {

GeoidModel::~GeoidModel() = default;

bool GeoidModel::Init(VexGeoCoordSysBase* coordSys) {
    m_coordSys = coordSys;
    if (coordSys != nullptr) {
        m_unitFactor = coordSys->GetLinearUnitFactor();
        m_unitName = coordSys->GetLinearUnitName();
        if (m_unitFactor == 0.0) {
            m_unitFactor = 1.0;
            m_unitName = u"m";
        }
    }
    return true;
}

bool GeoidModel::SetFileName(const CString& fileName) {
    m_fileName = fileName;
    return true;
}

void GeoidModel::SetGeoidChartDatum(const CString& chartDatum) {
    m_geoidChartDatum = chartDatum;
}

bool GeoidModel::Calculate(double, double, double&, double&, bool) {
    return false;
}

bool GeoidModel::Calculate(double, double, double, double, double&, CString&) {
    return false;
}

bool GeoidModel::CalculateLocalEllipsCorrection(double, double, double&, double&, bool) {
    return false;
}

bool GeoidModel::CheckGeoidModelFiles(const CString&, CString& message, bool) {
    message.Empty();
    return true;
}

unsigned long long GeoidModel::ReportAlert(std::unique_ptr<Error> error) {
    return vex::ReportAlert(std::move(error));
}

unsigned long long GeoidModel::ReportAlert(const CString& text) {
    return vex::ReportAlert(text);
}

}  // namespace vex
