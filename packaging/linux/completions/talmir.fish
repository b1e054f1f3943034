# Completion of talmir for fish.
complete -c talmir -f
complete -c talmir -s h -l help -d 'Show help'
complete -c talmir -s v -l version -d 'Show the version'
complete -c talmir -k -a '(__fish_complete_suffix .xdb)'
