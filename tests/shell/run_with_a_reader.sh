#!/bin/sh
# run_with_a_reader.sh PROGRAM [ARGUMENT...]
#
# Runs a program on a desktop whose assistive tools are switched on: the toolkit tells them what changes. The
# desktop ends with the program.
set -eu
exec dbus-run-session -- sh -c '
    /usr/libexec/at-spi-bus-launcher --launch-immediately --a11y=1 >/dev/null 2>&1 &
    "$@"' reader "$@"
