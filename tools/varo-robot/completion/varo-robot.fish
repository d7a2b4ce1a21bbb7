# Completion of varo-robot in fish: the tool itself says what can follow. While it completes, fish
# does not tell what stands behind the cursor: a file has to stand before the names in it.
function __varo_robot_completions
    set -l before (commandline -opc)
    set -l current (commandline -ct)
    for line in ($before[1] complete (count $before) $before "$current" 2>/dev/null)
        if test "$line" = \tfiles
            __fish_complete_path "$current"
        else
            echo $line
        end
    end
end
complete -c varo-robot -f -a '(__varo_robot_completions)'
