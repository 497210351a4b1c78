#!/usr/bin/env bash
# Installs what the build needs and fetches the sol2 headers into the build tree.
# Idempotent: a second run with everything present only checks and exits.
set -euo pipefail

ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
THIRD_PARTY="${VLMR_THIRD_PARTY_DIR:-$ROOT/build/third_party}"
SOL_DIR="$THIRD_PARTY/sol"
SOL_SHA="6c263e958a6e33cc9d287ba5ac9bd7e617a40851f571a0805e5ac5f37c715232"
CONFIG_SHA="6c283673a16f0eeb3c56f8b8d72ccf7ed3f048816dbd2584ac58564c61315f02"
PACKAGES=(g++ cmake ninja-build ccache make liblua5.4-dev libgtest-dev libgmock-dev googletest
	libbenchmark-dev nlohmann-json3-dev libclang-rt-14-dev ca-certificates dpkg
	libpng-dev libjpeg-dev libopenexr-dev libstb-dev libicu-dev)

die() { echo "bootstrap: $*" >&2; exit 1; }

as_root() {
	if [ "$(id -u)" -eq 0 ]; then "$@"; elif command -v sudo >/dev/null; then sudo "$@"; else
		die "need root to run: $*"; fi
}

install_packages() {
	local missing=()
	for p in "${PACKAGES[@]}"; do
		dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
	done
	[ ${#missing[@]} -eq 0 ] && return 0
	echo "bootstrap: installing ${missing[*]}"
	as_root env DEBIAN_FRONTEND=noninteractive apt-get update -qq ||
		die "apt-get update failed"
	as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" ||
		die "apt-get install failed for: ${missing[*]}"
}

sha_ok() { [ -f "$1" ] && [ "$(sha256sum "$1" | cut -d' ' -f1)" = "$2" ]; }

# The archive address of the system's own bookworm sources, reused for the trixie line.
debian_mirror() {
	local uri
	uri=$(grep -rhE '^(URIs:|deb )' /etc/apt/sources.list.d/ /etc/apt/sources.list 2>/dev/null |
		grep -E 'debian/?($| )' | grep -v security | head -n1 |
		sed -E 's/^URIs:[[:space:]]*//; s/^deb[[:space:]]+(\[[^]]*\][[:space:]]+)?//' | awk '{print $1}')
	echo "${uri:-http://deb.debian.org/debian}"
}

fetch_sol2() {
	if sha_ok "$SOL_DIR/sol.hpp" "$SOL_SHA" && sha_ok "$SOL_DIR/config.hpp" "$CONFIG_SHA"; then
		return 0
	fi
	echo "bootstrap: fetching sol2 3.3.0 headers (Debian trixie satdump-data)"
	local scratch
	scratch=$(mktemp -d)
	trap 'rm -rf "$scratch"' RETURN
	mkdir -p "$scratch/lists/partial" "$scratch/archives/partial" "$scratch/x"
	echo "deb [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(debian_mirror) trixie main" \
		>"$scratch/trixie.list"
	local apt_opts=(-o Dir::Etc::sourcelist="$scratch/trixie.list" -o Dir::Etc::sourceparts=-
		-o Dir::State::Lists="$scratch/lists" -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache=
		-o Debug::NoLocking=1 -o APT::Sandbox::User=root)
	apt-get -qq "${apt_opts[@]}" update >/dev/null 2>"$scratch/err" ||
		die "apt-get update of the trixie package list failed: $(tail -n3 "$scratch/err")"
	(cd "$scratch" && apt-get -qq "${apt_opts[@]}" download satdump-data >/dev/null 2>"$scratch/err") ||
		die "download of satdump-data (sol2 headers) failed: $(tail -n3 "$scratch/err")"
	dpkg -x "$scratch"/satdump-data_*.deb "$scratch/x" || die "could not unpack satdump-data"
	local src="$scratch/x/usr/include/satdump/libs/sol2"
	sha_ok "$src/sol.hpp" "$SOL_SHA" || die "sol.hpp from satdump-data has an unexpected sha256"
	sha_ok "$src/config.hpp" "$CONFIG_SHA" || die "config.hpp from satdump-data has an unexpected sha256"
	mkdir -p "$SOL_DIR"
	cp "$src/sol.hpp" "$src/config.hpp" "$SOL_DIR/"
}

install_packages
fetch_sol2
