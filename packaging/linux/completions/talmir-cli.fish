# Completion of talmir-cli for fish.
complete -c talmir-cli -f
complete -c talmir-cli -s h -l help -d 'Show help'
complete -c talmir-cli -s v -l version -d 'Show the version'

complete -c talmir-cli -n __fish_use_subcommand -a calc -d 'Show the balance figures of creature files'
complete -c talmir-cli -n '__fish_seen_subcommand_from calc' -l json -d 'Print one JSON object a line and file'
complete -c talmir-cli -n '__fish_seen_subcommand_from calc' -k -a '(__fish_complete_suffix .xdb)'

complete -c talmir-cli -n __fish_use_subcommand -a explain -d 'Show how the figures of a creature come about'
complete -c talmir-cli -n '__fish_seen_subcommand_from explain' -l json -d 'Print one JSON document'
complete -c talmir-cli -n '__fish_seen_subcommand_from explain' -l lang -x -a 'EN RU' -d 'Language of the text'
complete -c talmir-cli -n '__fish_seen_subcommand_from explain' -k -a '(__fish_complete_suffix .xdb)'

complete -c talmir-cli -n __fish_use_subcommand -a solve -d 'Find the values that give a creature a Power'
complete -c talmir-cli -n '__fish_seen_subcommand_from solve' -l vary -x -a 'Attack Defence MinDam MaxDam Health Speed Initiative Tier' -d 'Parameters to try'
complete -c talmir-cli -n '__fish_seen_subcommand_from solve' -l scale-of -r -F -d 'Reckon in the figures of a mod'
complete -c talmir-cli -n '__fish_seen_subcommand_from solve' -l json -d 'Print one JSON document'
complete -c talmir-cli -n '__fish_seen_subcommand_from solve' -l lang -x -a 'EN RU' -d 'Language of the table'
complete -c talmir-cli -n '__fish_seen_subcommand_from solve' -k -a '(__fish_complete_suffix .xdb)'

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

complete -c talmir-cli -n __fish_use_subcommand -a texts -d 'Copy the ability texts out of the game'
complete -c talmir-cli -n '__fish_seen_subcommand_from texts' -l lang -x -a 'EN RU' -d 'Language of these texts'
complete -c talmir-cli -n '__fish_seen_subcommand_from texts' -k -a '(__fish_complete_suffix .pak)'
