# Completion of varo-robot in bash: the tool itself says what can follow.
_varo_robot() {
    local current=${COMP_WORDS[COMP_CWORD]} rest=$COMP_LINE words=() index=0 i word before whole candidate
    COMPREPLY=()
    # Bash takes words apart at "=" and ":"; the tool gets whole ones, without quotes.
    for ((i = 0; i < ${#COMP_WORDS[@]}; i++)); do
        word=${COMP_WORDS[i]}
        before=${rest%%"$word"*}
        [[ -n $word ]] || before=${COMP_LINE:COMP_POINT-1:1}
        rest=${rest#*"$word"}
        if ((i == 0)) || [[ $before == *[[:space:]] ]]; then
            words+=("$word")
        else
            words[-1]+=$word
        fi
        ((i != COMP_CWORD)) || index=$((${#words[@]} - 1))
    done
    whole=${words[index]}
    [[ $current != [=:] ]] || current=""
    before=${whole%"$current"}
    words=("${words[@]//[\\\"\']/}")

    local files=""
    while IFS= read -r word; do
        if [[ $word == $'\tfiles' ]]; then
            files=yes
        else
            candidate=${word%%$'\t'*}
            candidate=${candidate#"$before"}
            [[ $current == [\"\']* ]] || printf -v candidate %q "$candidate"
            COMPREPLY+=("$candidate")
        fi
    done < <("$1" complete "$index" "${words[@]}" 2>/dev/null)

    [[ ${COMPREPLY[0]} != *= ]] || compopt -o nospace
    if [[ -n $files && ${#COMPREPLY[@]} -eq 0 ]]; then
        compopt -o default  # readline's own completion of files
    elif [[ -n $files ]]; then
        mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -F _varo_robot varo-robot
