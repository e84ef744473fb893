#pragma once

#include <string>
#include <vector>

#include <QStringList>

// A command line is made of bytes: the name of a file need not be UTF-8. Qt reads command lines as
// characters, and what it cannot read as characters it loses. So each byte goes through Qt as the
// one character of the same number (Latin-1), and comes back as the same byte.

namespace tavrin {

// The arguments for QCommandLineParser.
inline QStringList charactersOf(const std::vector<std::string>& arguments) {
  QStringList characters;
  for (const std::string& argument : arguments) characters << QString::fromLatin1(argument);
  return characters;
}

// The bytes of an argument, of a value of one, or of the parser's complaint about one.
inline std::string bytesOf(const QString& characters) {
  return characters.toLatin1().toStdString();
}

}  // namespace tavrin
