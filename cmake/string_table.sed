# Makes the lines of a string table, as resource scripts have them, out of those of a language
# catalogue. "\\", "\n", "\r" and "\t" mean the same in both.
1s/^\xEF\xBB\xBF//
s/\r$//
/^[ \t]*#/d
/^[ \t]*$/d
s/^[ \t]*([0-9]+)[ \t]*=[ \t]*(.*)$/\1 \2/
s/[ \t]*$//
s/"/""/g
s/\\\\/\x01/g
s/\\s/ /g
s/\x01/\\\\/g
s/^([0-9]+) (.*)$/  \1 "\2"/
