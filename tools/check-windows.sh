#!/usr/bin/env bash
# check-windows.sh: whether every source of the module compiles for Windows, against the headers of
# Windows with their own GDI+. Qt's headers are those of this machine; nothing is linked or run.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. tools/prepare.sh

# shellcheck disable=SC2086
install_missing $BUILD_PACKAGES $WINDOWS_PACKAGES
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
qt=$(pkg-config --variable=includedir Qt5Core)
tools=$(pkg-config --variable=host_bins Qt5Core)
compile=(x86_64-w64-mingw32-g++-posix -std=c++17 -I. -I"$work" -isystem "$work/libraries"
    -isystem "$qt" -isystem "$qt/QtCore" -isystem "$qt/QtGui" -isystem "$qt/QtWidgets"
    -DQT_NO_FOREACH -Wall -Wextra -Werror)

# Beside Debian's other headers it would bring those of Linux.
mkdir "$work/libraries"
ln -s /usr/include/rapidjson "$work/libraries/rapidjson"
# What the build generates.
"$tools/uic" plugin/IntelligentRulesCtrl.ui -o "$work/ui_IntelligentRulesCtrl.h"
grep -lE '^#include "\w+\.moc"' {draw,Protocol,scene,tabel,plugin}/*.cpp | while read -r source; do
    "$tools/moc" "$source" -o "$work/$(basename "$source" .cpp).moc"
done
# Read once, as it takes most of the time. Not all of Qt: that has Windows' headers, which a source
# without GDI+ does not see.
printf '#include <%s>\n' QtCore/QtCore QtGui/QPainter QtGui/QKeyEvent QtWidgets/QApplication \
    QtWidgets/QLineEdit QtWidgets/QScrollArea >"$work/qt.h"
"${compile[@]}" -x c++-header "$work/qt.h" -o "$work/qt.h.gch"

find draw Protocol scene tabel plugin -name '*.cpp' | sort >"$work/sources"
say "Compiling the module's $(wc -l <"$work/sources") sources for Windows"
xargs -a "$work/sources" -P "$(nproc)" -n 1 \
    "${compile[@]}" -include "$work/qt.h" -Winvalid-pch -fsyntax-only
say "The module compiles for Windows"
