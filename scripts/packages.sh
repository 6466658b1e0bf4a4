# Sourced by the other scripts: installs the Debian packages that are missing.

install_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null |
      grep -qx installed || missing+=("$package")
  done
  [ "${#missing[@]}" -gt 0 ] || return 0
  echo "installing ${missing[*]}"
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  "${as_root[@]}" apt-get update --quiet=2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install --quiet=2 --yes --no-install-recommends "${missing[@]}" >/dev/null
}

# The mirror that this machine takes Debian's packages from.
debian_mirror() {
  cat /etc/apt/sources.list /etc/apt/sources.list.d/debian.sources 2>/dev/null |
    sed -nE 's/^URIs: *([^ ]+).*/\1/p; s/^deb( \[[^]]*\])? +([^ ]+) .*/\2/p' | head -n 1
}

# shellcheck disable=SC2034 # the lists are for those who source this file
build_packages=(g++ cmake make libcli11-dev libcsv-dev libzip-dev nlohmann-json3-dev)
# shellcheck disable=SC2034
test_packages=(binutils clang-14 clang-format-14 clang-tidy-14 fp-compiler git hledger
  libbenchmark-dev libclang-rt-14-dev libgtest-dev libjemalloc2 libmimalloc2.0
  libtcmalloc-minimal4 libxml2-dev libxml2-utils locales-all pkgconf python3 shellcheck)
# shellcheck disable=SC2034
bench_packages=(libbenchmark-dev libktoblzcheck1-dev libpugixml-dev libxml2-dev python3 valgrind)
# shellcheck disable=SC2034
document_packages=(git pkgconf python3 python3-jsonschema)
# shellcheck disable=SC2034
windows_library_packages=(cmake dpkg-dev g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix
  libcli11-dev libz-mingw-w64-dev nlohmann-json3-dev)
# shellcheck disable=SC2034
windows_packages=(binutils-mingw-w64-i686 binutils-mingw-w64-x86-64 g++-mingw-w64-i686-posix
  g++-mingw-w64-x86-64-posix googletest libgtest-dev libxml2-dev libxml2-utils
  python3 wine64)
# Those of other processors, for the tests under qemu-user.
# shellcheck disable=SC2034
processor_packages=(g++-aarch64-linux-gnu g++-arm-linux-gnueabihf g++-i686-linux-gnu
  g++-s390x-linux-gnu googletest qemu-user)
# For making Debian packages and looking at them.
# shellcheck disable=SC2034
package_packages=(debootstrap dpkg-dev file git gzip lintian)
# shellcheck disable=SC2034
reference_packages=(doxygen fish groff zsh)
