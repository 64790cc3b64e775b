#include "widgets/CodePageText.h"

#include <QList>
#include <algorithm>

#include "general/CodePage.h"

namespace parlate {

QString ToQString(std::string_view codePage) {
  QString text(static_cast<qsizetype>(codePage.size()), Qt::Uninitialized);
  std::transform(codePage.begin(), codePage.end(), text.begin(),
                 [](char byte) { return QChar(CodePoint(static_cast<unsigned char>(byte))); });
  return text;
}

QString ToSingleLine(std::string_view codePage) {
  QString text = ToQString(codePage);
  std::replace_if(
      text.begin(), text.end(), [](QChar character) { return character < u' '; }, QChar(u' '));
  return text;
}

std::string FromQString(const QString& text) {
  std::string codePage;
  codePage.reserve(static_cast<std::size_t>(text.size()));
  for (const char32_t character : text.toUcs4()) codePage += CodePageByte(character);
  return codePage;
}

}  // namespace parlate
