# Writes what the help compiler asks for beside the pages: the project with the numbers of the
# topics, the contents and the index.
#
#   awk -v name=NAME -v language=0x409 -v folder=FOLDER -f make_help_project.awk topics.txt index.html PAGE...
#
# topics.txt has the number of each page, index.html the order and the headings of the contents, and
# each page its title and the headings that can be gone to.

function file_of(path) {
    sub(/.*\//, "", path)
    return path
}

# The text between the first ">" behind a tag's start and the next "<".
function text_of(line, tag) {
    sub(".*<" tag "[^>]*>", "", line)
    sub(/<.*/, "", line)
    return line
}

function entry(text, target) {
    return "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"" text "\">" \
        (target == "" ? "" : "<param name=\"Local\" value=\"" target "\">") "</OBJECT>"
}

function begin_list(path) {
    print "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\n<HTML><BODY>\n<UL>" > path
}

BEGIN {
    project = folder "/" name ".hhp"
    contents = folder "/contents.hhc"
    index_file = folder "/index.hhk"
    begin_list(contents)
    begin_list(index_file)
    close(index_file)
    in_index = "LC_ALL=C sort -f >>" index_file
}

file_of(FILENAME) == "topics.txt" {
    if ($1 ~ /^[0-9]+$/) {
        number[++topics] = $1
        page[topics] = $2
    }
    next
}

/<title>/ {
    title = text_of($0, "title")
    at = index(title, " - ")
    product = substr(title, at + 3)
    title = substr(title, 1, at - 1)
    print entry(title, file_of(FILENAME)) | in_index
    if (file_of(FILENAME) == page[1]) {
        tool = product
        print entry(title, page[1]) > contents
    }
}

/<h2 id="/ {
    target = $0
    sub(/.*<h2 id="/, "", target)
    sub(/".*/, "", target)
    print entry(text_of($0, "h2") " (" title ")", file_of(FILENAME) "#" target) | in_index
}

file_of(FILENAME) == page[1] && /<h2>/ {
    if (in_chapter) print "</UL>" > contents
    in_chapter = 1
    print entry(text_of($0, "h2"), "") "\n<UL>" > contents
}

file_of(FILENAME) == page[1] && /<li><a href="/ {
    target = $0
    sub(/.*<li><a href="/, "", target)
    sub(/".*/, "", target)
    print entry(text_of($0, "a"), target) > contents
}

END {
    if (in_chapter) print "</UL>" > contents
    print "</UL>\n</BODY></HTML>" > contents
    close(contents)
    close(in_index)
    print "</UL>\n</BODY></HTML>" >> index_file
    close(index_file)
    print "[OPTIONS]" > project
    print "Compiled file=" name ".chm" > project
    print "Contents file=contents.hhc" > project
    print "Index file=index.hhk" > project
    print "Default topic=" page[1] > project
    print "Title=" tool > project
    print "Language=" language > project
    print "Full-text search=Yes" > project
    print "\n[FILES]" > project
    for (i = 1; i <= topics; ++i) print page[i] > project
    print "help.css" > project
    print "\n[ALIAS]" > project
    for (i = 1; i <= topics; ++i) print "TOPIC_" number[i] "=" page[i] > project
    print "\n[MAP]" > project
    for (i = 1; i <= topics; ++i) print "#define TOPIC_" number[i] " " number[i] > project
}
