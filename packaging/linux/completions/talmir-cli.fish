# Completion of talmir-cli for fish.
complete -c talmir-cli -f
complete -c talmir-cli -s h -l help -d 'Show help'
complete -c talmir-cli -s v -l version -d 'Show the version'

complete -c talmir-cli -n __fish_use_subcommand -a calc -d 'Show the balance figures of creature files'
complete -c talmir-cli -n '__fish_seen_subcommand_from calc' -l json -d 'Print one JSON object a line and file'
complete -c talmir-cli -n '__fish_seen_subcommand_from calc' -k -a '(__fish_complete_suffix .xdb)'

complete -c talmir-cli -n __fish_use_subcommand -a set -d 'Change values in existing creature files'
complete -c talmir-cli -n '__fish_seen_subcommand_from set' -l write -d 'Write the files that change'
complete -c talmir-cli -n '__fish_seen_subcommand_from set' -l diff -d 'Print the changed lines'
complete -c talmir-cli -n '__fish_seen_subcommand_from set' -l json -d 'Print one JSON object a line and file'
complete -c talmir-cli -n '__fish_seen_subcommand_from set' -l any-word -d 'Add also items that the game does not know'
complete -c talmir-cli -n '__fish_seen_subcommand_from set' -l scale-of -r -F -d 'Divide computed figures by the scale of a mod'
complete -c talmir-cli -n '__fish_seen_subcommand_from set' -k -a '(__fish_complete_suffix .xdb)'

complete -c talmir-cli -n __fish_use_subcommand -a run -d 'Play a script of user actions'
complete -c talmir-cli -n '__fish_seen_subcommand_from run' -l lang -x -a 'EN RU' -d 'Language at the start'
complete -c talmir-cli -n '__fish_seen_subcommand_from run' -l keep-going -d 'Go on behind what cannot be done'
complete -c talmir-cli -n '__fish_seen_subcommand_from run' -F

complete -c talmir-cli -n __fish_use_subcommand -a find -d 'Find abilities by what the game says of them'
complete -c talmir-cli -n '__fish_seen_subcommand_from find' -l lang -x -a 'EN RU' -d 'Language of names and descriptions'
complete -c talmir-cli -n '__fish_seen_subcommand_from find' -l json -d 'Print one JSON object a line and ability'

complete -c talmir-cli -n __fish_use_subcommand -a texts -d 'Copy the ability texts out of the game'
complete -c talmir-cli -n '__fish_seen_subcommand_from texts' -l lang -x -a 'EN RU' -d 'Language of these texts'
complete -c talmir-cli -n '__fish_seen_subcommand_from texts' -k -a '(__fish_complete_suffix .pak)'
