# Read by the other scripts: where the project is, headings, and what every build shares.

cd "$(dirname "${BASH_SOURCE[0]}")/.."

heading() { printf '\n== %s\n' "$*"; }

stop() {
  printf '%s\n' "$*" >&2
  exit 1
}

usage() { # prints the comment at the head of the script given, without the first line
  sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$1"
}

processors() { getconf _NPROCESSORS_ONLN 2>/dev/null || echo 2; }

# The compiler cache is used where there is one. The two tolerances let it work with precompiled headers.
if [ -z "${CMAKE_CXX_COMPILER_LAUNCHER+set}" ] && command -v ccache >/dev/null 2>&1; then
  export CMAKE_CXX_COMPILER_LAUNCHER=ccache
  export CCACHE_SLOPPINESS="${CCACHE_SLOPPINESS:-pch_defines,time_macros}"
fi

# One program of the tools at the version that the project is formatted and linted with.
tool_14() {
  if command -v "$1-14" >/dev/null 2>&1; then
    echo "$1-14"
  elif command -v "$1" >/dev/null 2>&1 && "$1" --version | grep -q 'version 14\.'; then
    echo "$1"
  else
    stop "$1 14 is missing: script/setup --dev installs it where there is apt"
  fi
}
