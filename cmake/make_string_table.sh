#!/bin/sh
# Makes a resource script with the texts of a language: make_string_table.sh CATALOGUE SCRIPT
set -e
{
  echo 'LANGUAGE 0, 0'
  echo 'STRINGTABLE'
  echo 'BEGIN'
  sed -E -f "$(dirname "$0")/string_table.sed" "$1"
  echo 'END'
} >"$2"
