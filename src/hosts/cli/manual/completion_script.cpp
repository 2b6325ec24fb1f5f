#include "hosts/cli/manual/completion_script.h"

namespace cli {

/// The candidates come quoted as the line needs them, without what stands before $2: the colon of
/// COMPONENT:LEVEL ends a word for bash.
const char* const bashCompletion =
    R"(# bash completion of orvandiag. Try it: source <(orvandiag completion bash)
_orvandiag()
{
    local answer
    mapfile -t answer < <("${1/#\~\//$HOME/}" complete bash -- \
        "${COMP_LINE:0:COMP_POINT}" "$2" 2>/dev/null)
    COMPREPLY=("${answer[@]:1}")
    case ${answer[0]} in
    parts) compopt -o nospace 2>/dev/null ;;
    folders)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$2")
        ;;
    files)
        ((${#COMPREPLY[@]})) && return
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$2")
        ;;
    esac
}
complete -F _orvandiag orvandiag
)";

const char* const zshCompletion =
    R"(#compdef orvandiag
# zsh completion of orvandiag. Try it: source <(orvandiag completion zsh)
_orvandiag()
{
    local line="${(j: :)words[1,CURRENT-1]} $IPREFIX$QIPREFIX$PREFIX"
    local -a answer candidates
    answer=("${(@f)$("${(Q)words[1]/#\~\//$HOME/}" complete zsh -- "$line" 2>/dev/null)}")
    candidates=("${(@)answer[2,-1]}")
    local -a anyCase=(-M 'm:{[:lower:][:upper:]}={[:upper:][:lower:]}')
    case $answer[1] in
    parts) compadd $anyCase -S '' -a candidates ;;
    folders) _files -/ ;;
    files)
        local found=1
        compadd $anyCase -a candidates && found=0
        _files && found=0
        return found
        ;;
    *) compadd $anyCase -a candidates ;;
    esac
}
if [[ $funcstack[1] == _orvandiag ]]; then
    _orvandiag "$@"
elif (( $+functions[compdef] )); then
    compdef _orvandiag orvandiag
fi
)";

const char* const fishCompletion =
    R"(# fish completion of orvandiag. Try it: orvandiag completion fish | source
function __orvandiag_candidates
    set -l words (commandline -opc)
    set -l answer ($words[1] complete fish -- (commandline -cp | string collect) 2>/dev/null)
    switch "$answer[1]"
        case folders
            __fish_complete_directories (commandline -ct)
        case files
            printf '%s\n' $answer[2..-1]
            __fish_complete_path (commandline -ct)
        case '*'
            printf '%s\n' $answer[2..-1]
    end
end
complete -c orvandiag -f -a '(__orvandiag_candidates)'
)";

} // namespace cli
