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

complete -c talmir-cli -n __fish_use_subcommand -a check -d 'Tell what is wrong in creature files'
complete -c talmir-cli -n '__fish_seen_subcommand_from check' -l json -d 'Print one JSON document'
complete -c talmir-cli -n '__fish_seen_subcommand_from check' -l game -r -F -d 'Folder or archive of the game'
complete -c talmir-cli -n '__fish_seen_subcommand_from check' -F

complete -c talmir-cli -n __fish_use_subcommand -a apply -d 'Change creature files as a table says'
complete -c talmir-cli -n '__fish_seen_subcommand_from apply' -l write -d 'Write the files that change'
complete -c talmir-cli -n '__fish_seen_subcommand_from apply' -l diff -d 'Print the changed lines'
complete -c talmir-cli -n '__fish_seen_subcommand_from apply' -l json -d 'Print one JSON object a line and file'
complete -c talmir-cli -n '__fish_seen_subcommand_from apply' -F

complete -c talmir-cli -n __fish_use_subcommand -a table -d 'Show the creatures of a mod as one table'
complete -c talmir-cli -n '__fish_seen_subcommand_from table' -l csv -d 'Print all columns as CSV'
complete -c talmir-cli -n '__fish_seen_subcommand_from table' -l bom -d 'Begin the CSV with a byte-order mark'
complete -c talmir-cli -n '__fish_seen_subcommand_from table' -l json -d 'Print one JSON document'
complete -c talmir-cli -n '__fish_seen_subcommand_from table' -l html -r -F -d 'Write a page for a browser'
complete -c talmir-cli -n '__fish_seen_subcommand_from table' -l sort -x -a 'file name town CreatureTier Upgrade AttackSkill DefenceSkill MinDamage MaxDamage Health Speed Initiative Shots SpellPoints Range Power Exp WeeklyGrowth Gold Abilities rolvane.Power rolvane.Exp rolvane.WeeklyGrowth rolvane.Gold hesperin.Power hesperin.Exp hesperin.WeeklyGrowth hesperin.Gold average.Power average.Exp average.WeeklyGrowth average.Gold product advised scale deviation problem' -d 'Sort by a column'
complete -c talmir-cli -n '__fish_seen_subcommand_from table' -l outliers -x -d 'Only creatures that deviate by more percent'
complete -c talmir-cli -n '__fish_seen_subcommand_from table' -l against -r -F -d 'Tell what another version of the mod has different'
complete -c talmir-cli -n '__fish_seen_subcommand_from table' -l jobs -x -d 'How many files at once'
complete -c talmir-cli -n '__fish_seen_subcommand_from table' -k -a '(__fish_complete_suffix .xdb .pak .h5u)'

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
