#!/bin/sh
# Runs the command and prints its exit status, as a shell reports it (128 + N for a process ended by signal N).
"$@"
echo "exit status $?"
