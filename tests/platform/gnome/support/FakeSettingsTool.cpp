// SPDX-License-Identifier: MIT
#include "FakeSettingsTool.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace quorvane {

namespace {

using namespace Qt::StringLiterals;

// A slash stands as % in the names of the files.
const char* const script = R"sh(#!/bin/sh
folder=${0%/*}
[ -e "$folder/unknown" ] && { echo "No such schema" >&2; exit 1; }
schema=$(printf %s "$2" | tr / %)
file=$folder/settings/"$schema $3"
case $1 in
get) [ -e "$file" ] && cat "$file" || echo '@as []' ;;
set) [ ! -e "$folder/refused" ] && printf '%s\n' "$4" >"$file" ;;
reset) rm -f "$file" ;;
reset-recursively) rm -f "$folder/settings/$schema "* ;;
list-recursively)
    for file in "$folder/settings/$schema "*; do
        [ -e "$file" ] && printf '%s %s %s\n' "$2" "${file##* }" "$(cat "$file")"
    done
    exit 0
    ;;
*) exit 1 ;;
esac
)sh";

void write(const QString& path, const QByteArray& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

} // namespace

FakeSettingsTool::FakeSettingsTool() {
    write(program(), script);
    QFile::setPermissions(program(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QDir(m_folder.path()).mkdir(u"settings"_s);
}

void FakeSettingsTool::set(const QString& schema, const QString& key, const QString& value) {
    write(fileOf(schema, key), value.toUtf8() + '\n');
}

std::map<QString, QString> FakeSettingsTool::settings() const {
    std::map<QString, QString> settings;
    const QDir folder(m_folder.filePath(u"settings"_s));
    for (const auto& name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        auto setting = name;
        settings.emplace(setting.replace(u'%', u'/'), QString::fromUtf8(file.readAll()).trimmed());
    }
    return settings;
}

void FakeSettingsTool::refuseToWrite() {
    write(m_folder.filePath(u"refused"_s), {});
}

void FakeSettingsTool::forgetSchemas() {
    write(m_folder.filePath(u"unknown"_s), {});
}

QString FakeSettingsTool::fileOf(const QString& schema, const QString& key) const {
    auto name = schema + u' ' + key;
    return m_folder.filePath(u"settings/"_s + name.replace(u'/', u'%'));
}

} // namespace quorvane
