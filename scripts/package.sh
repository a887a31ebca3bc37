#!/usr/bin/env bash
# Builds the Debian package (build-package/radioprog_VERSION_ARCH.deb) and checks it: its
# contents, lintian without errors, the desktop entry, and radioprog-cli run from the package
# unpacked in a scratch root.
# usage: scripts/package.sh [BUILD_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build-package}

scripts/build.sh "$build" -DCMAKE_BUILD_TYPE=Release -DRADIOPROG_MANPAGES=ON -DBUILD_TESTING=OFF
(cd "$build" && rm -f radioprog_*.deb && cpack -G DEB >/dev/null)
deb=$(ls "$build"/radioprog_*.deb)
echo "built $deb ($(du -k "$deb" | cut -f1) KB)"

fail() { echo "package check failed: $*" >&2; exit 1; }

contents=$(dpkg-deb -c "$deb")
for path in ./usr/bin/radioprog ./usr/bin/radioprog-cli ./usr/bin/radiosim \
            ./usr/share/applications/radioprog.desktop \
            ./usr/share/icons/hicolor/scalable/apps/radioprog.svg \
            ./usr/share/man/man1/radioprog-cli.1.gz ./usr/share/man/man1/radiosim.1.gz \
            ./usr/share/bash-completion/completions/radioprog-cli \
            ./lib/udev/rules.d/60-radioprog.rules \
            ./usr/share/doc/radioprog/copyright; do
    grep -q " $path\$" <<<"$contents" || fail "$path is not in the package"
done

depends=$(dpkg-deb -f "$deb" Depends)
for library in libqt6core6 libqt6serialport6 libqt6widgets6 qt6-qpa-plugins; do
    grep -q "$library" <<<"$depends" || fail "Depends lacks $library: $depends"
done

desktop-file-validate packaging/linux/radioprog.desktop

# Errors fail the check; warnings and notes are shown.
lintian_log=$(mktemp)
lintian --tag-display-limit 0 "$deb" >"$lintian_log" 2>&1 || true
cat "$lintian_log"
if grep -q '^E: ' "$lintian_log"; then
    rm -f "$lintian_log"
    fail "lintian reports errors"
fi
rm -f "$lintian_log"

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
dpkg -x "$deb" "$scratch"
"$scratch/usr/bin/radioprog-cli" --help >/dev/null || fail "radioprog-cli --help from the package"
"$scratch/usr/bin/radioprog-cli" doctor --udev-rule | cmp -s - packaging/linux/60-radioprog.rules ||
    fail "the packaged radioprog-cli prints another udev rule than the one installed"
echo "package checks passed"
