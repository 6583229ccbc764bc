#include "host/local/record_format.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "base/runtime_error.h"

namespace tonarix {

namespace {

constexpr QLatin1String kField{"record"};

QJsonValue to_json(const Variant& data) {
  if (data.is_flag()) return data.number() != 0;
  if (data.is_number()) return data.number();
  if (data.is_text()) return QString::fromStdString(data.text());
  if (!data.is_array()) return QJsonValue::Null;
  QJsonArray elements;
  for (const Variant& element : data.array()) elements.append(to_json(element));
  return elements;
}

Variant from_json(const QJsonValue& value) {
  if (value.isBool()) return value.toBool();
  if (value.isDouble()) return value.toDouble();
  if (value.isString()) return value.toString().toStdString();
  if (!value.isArray()) return {};
  Variant::Array elements;
  const QJsonArray array = value.toArray();
  for (const auto element : array) elements.push_back(from_json(element));
  return elements;
}

}  // namespace

std::string write_record(const Variant& data) {
  const QJsonObject object{{kField, to_json(data)}};
  std::string json = QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
  if (read_record(json) != data) throw RuntimeError::type_mismatch("write_record");
  return json;
}

std::optional<Variant> read_record(std::string_view json) {
  const auto bytes = QByteArray::fromRawData(json.data(), static_cast<qsizetype>(json.size()));
  const QJsonObject object = QJsonDocument::fromJson(bytes).object();
  if (!object.contains(kField)) return {};
  return from_json(object.value(kField));
}

}  // namespace tonarix
