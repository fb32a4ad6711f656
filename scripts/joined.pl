#!/usr/bin/perl
# Joins the sources that are compiled with the same options, as those of a library are, into one
# file in the folder TO, and writes the compile_commands.json of these files there. Leaves out what
# stands in the folders EXCEPT. Prints the paths of the joined files.
#
# Usage: scripts/joined.pl TO EXCEPT... <compile_commands.json
use strict;
use warnings;

my ($to, @except) = @ARGV;
my %sources;
while (<STDIN>) {
    my ($options, $source) = /"command": "(.*) -o \S+ -c (\S+)"/ or next;
    (my $folder = $source) =~ s{/[^/]*$}{};
    push @{$sources{"$options -iquote $folder"}}, $source unless grep { index($source, "$_/") == 0 } @except;
}
my @commands;
for my $options (sort keys %sources) {
    my $joined = "$to/joined" . @commands . '.cpp';
    open(my $out, '>:raw', $joined) or die "$joined: $!\n";
    for my $source (@{$sources{$options}}) {
        open(my $in, '<:raw', $source) or die "$source: $!\n";
        print $out qq(#line 1 "$source"\n), <$in>, "\n";
    }
    close($out) or die "$joined: $!\n";
    print "$joined\n";
    push @commands, qq({"directory": "$to", "file": "$joined", "command": "$options -c $joined"});
}
open(my $list, '>:raw', "$to/compile_commands.json") or die "$to: $!\n";
print $list '[', join(",\n", @commands), "]\n";
close($list) or die "$to: $!\n";
