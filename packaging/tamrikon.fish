# Completes the commands, options, settings, modules and files of tamrikon in fish. The program itself
# says what there is: a candidate a line with a tab and its meaning behind it, or, behind a colon, what
# the shell is to add.

function __tamrikon_complete
    set -l words (commandline -opc)
    set -a words (commandline -ct)""
    for line in ($words[1] __complete $words[2..-1] 2>/dev/null)
        switch $line
            case ':files *'
                set -l ending '\.('(string replace ':files ' '' -- $line)')$'
                __fish_complete_directories $words[-1]
                for file in $words[-1]*
                    string match -riq -- $ending $file; and echo $file
                end
            case :files
                __fish_complete_path $words[-1]
            case :folders
                __fish_complete_directories $words[-1]
            case :nospace
            case '*'
                echo $line
        end
    end
end

complete -c tamrikon -f -a '(__tamrikon_complete)'
