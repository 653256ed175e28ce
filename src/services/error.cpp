// SPDX-License-Identifier: Apache-2.0
#include "ostrel/error.h"

#include "services/error_table.h"

#include <quillet/translation.h>

#include <algorithm>
#include <utility>

namespace {

predefinedErr translated(const ostrel::services::ErrorRow& row) {
  predefinedErr err;
  err.code = static_cast<OstrelErrorType>(row.code);
  err.type = xVeldError::typeError;
  err.message = iTranslate(row.message);
  return err;
}

}  // namespace

predefinedErr::predefinedErr()
    : code(errUndefined),
      type(xVeldError::typeError),
      message(iTranslate(ostrel::services::undefined_error_row.message)) {}

void getpredefinedErr(OstrelErrorType code, predefinedErr& out) {
  out = translated(ostrel::services::find_error_row(code));
}

xVeldError::xVeldError(OstrelErrorType code, std::int64_t id_obj, const char* prefix)
    : id_obj_(id_obj) {
  const predefinedErr row = translated(ostrel::services::find_error_row(code));
  id_ = row.code;
  type_ = row.type;
  message_ = (prefix ? prefix : "") + row.message;
}

xVeldError::xVeldError(const std::string& text, std::int64_t id_obj, typeErr type)
    : type_(type), message_(text), id_obj_(id_obj) {}

xVeldError::xVeldError(OstrelErrorType code, const char* text, std::int64_t id_obj, typeErr type)
    : id_(code), type_(type), message_(text ? text : ""), id_obj_(id_obj) {}

xVeldError::xVeldError(OstrelErrorType code, std::string text, std::int64_t id_obj, typeErr type)
    : id_(code), type_(type), message_(std::move(text)), id_obj_(id_obj) {}

void xVeldError::SetErr(OstrelErrorType code, const std::string& text, std::int64_t id_obj,
                        typeErr type) {
  *this = xVeldError(code, text, id_obj, type);
}

void xVeldError::SetErr(OstrelErrorType code, const char* text, std::int64_t id_obj, typeErr type) {
  *this = xVeldError(code, text, id_obj, type);
}

void xVeldError::SetErr(const char* text, typeErr type, std::int64_t id_obj) {
  *this = xVeldError(errFreeText, text, id_obj, type);
}

xVeldErrorsType xVeldError::getErr() const {
  switch (type_) {
    case typeError:
      return veldError;
    case typeWarning:
      return veldWarning;
    case typeInformation:
      return veldInformation;
  }
  return veldNothing;
}

std::string xVeldError::MakeErrStr() const {
  switch (type_) {
    case typeWarning:
      return std::string(iTranslate("Attenzione: ")) + message_;
    case typeInformation:
      return std::string(iTranslate("Informazione: ")) + message_;
    case typeError:
      break;
  }
  return std::string(iTranslate("Errore: ")) + message_;
}

xVeldErrorsType xVeldError::getWorstErr(const std::vector<xVeldError>& errors) {
  xVeldErrorsType worst = veldNothing;
  for (const xVeldError& each : errors) {
    worst = std::max(worst, each.getErr());
    if (worst == veldError) break;
  }
  return worst;
}

bool xVeldError::operator==(const xVeldError& other) const {
  if (type_ != other.type_ || id_obj_ != other.id_obj_) return false;
  return id_ == errFreeText ? message_ == other.message_ : id_ == other.id_;
}
