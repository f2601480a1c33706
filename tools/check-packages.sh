#!/usr/bin/env bash
# check-packages.sh [BUILD_FOLDER]: makes the Debian packages of a release build, asks lintian, and
# installs and uses them in a clean root. The packages are in out/packages afterwards.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. tools/prepare.sh
build=${1:-build/release}

# shellcheck disable=SC2086
install_missing $PACKAGE_PACKAGES
say "Making the packages"
rm -rf out/packages
(cd "$build" && cpack >/dev/null)
# Its headers must not be found by anybody.
rm -rf out/packages/_CPack_Packages
ls out/packages

say "Asking lintian"
lintian --allow-root --fail-on error --suppress-tags copyright-without-copyright-notice out/packages/*.deb

say "Making a clean root"
# shellcheck disable=SC1091
suite=$(. /etc/os-release && echo "$VERSION_CODENAME")
# shellcheck disable=SC2016
as_root mmdebstrap --mode=root --variant=apt --format=null --quiet \
    --dpkgopt=force-unsafe-io --aptopt='Acquire::Languages "none"' \
    --customize-hook='mkdir "$1/packages"' \
    --customize-hook='cp out/packages/*.deb packaging/in-clean-root.sh "$1/packages"' \
    --customize-hook='env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin chroot "$1" /packages/in-clean-root.sh' \
    "$suite" -
say "The packages hold what they promise"
