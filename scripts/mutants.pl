#!/usr/bin/perl
# Copies the files that standard input names, one after the other with a null byte at the end, into
# the folder TO. In those that are named as arguments, each statement gets a number and runs only
# while the environment variable MUTANT is another one. Prints the number, the file, the line and
# the statement of each, separated by tabs.
#
# Usage: git ls-files -z | scripts/mutants.pl TO FILE...
use strict;
use warnings;
use File::Basename qw(dirname);
use File::Path qw(make_path);

my ($to, @mutated) = @ARGV;
my %is_mutated = map { $_ => 1 } @mutated;
my $number = 0;
my $group = qr/(?<group>[({\[](?:[^][(){}]++|(?&group))*[])}])/; # what stands in brackets

sub content {
    my ($path) = @_;
    open(my $file, '<:raw', $path) or return undef;
    local $/;
    return scalar <$file> // '';
}

# Of the same length, but without anything that could be mistaken for code.
sub masked {
    my ($code) = @_;
    my $hide = sub { my ($text, $by) = @_; $text =~ s/[^\n]/$by/g; return $text };
    $code =~ s{(//[^\n]*|/\*.*?\*/|^[ \t]*\#[^\n]*)|("(?:\\.|[^"\\])*"|'(?:\\.|[^'\\])*')}
              {defined $1 ? $hide->($1, ' ') : $hide->($2, 'x')}gemsx;
    $code =~ s/(\bfor\s*)($group)/$1 . $2 =~ tr{;}{,}r/ge;
    return $code;
}

sub is_expression {
    my ($statement) = @_;
    return 1 if $statement =~ /^(?:emit|delete)\b/;
    return 0 if $statement =~ /^(?:return|break|continue|using|typedef|static_assert|goto|throw|Q_UNUSED
        |if|else|for|while|do|switch|case|default|struct|class|enum|static|const|constexpr|auto|template
        |public|protected|private|signals|namespace|Q_OBJECT)\b|^\(\)/x; # the last calls a lambda
    return 0 if $statement =~ /=\s*(?:default|delete);$/; # with the functions before it
    return 0 if $statement =~ /^\w+\[\]\s*=/; # declares an array of the struct before it
    return 0 if $statement =~ /^[\w:]+(?:<[^;]*?>)?[\s*&]+(?:const\s+)?[\w:]+\s*(?:[=;({\[,]|$)/; # declares a name
    return $statement =~ /^(?:[\w:(]|\*|\+\+|--)/;
}

# What a statement may follow.
my $before = qr/[;{}]|\belse\b|\bdo\b|\b(?:if|for|while)\s*(?:constexpr\s*)?$group|\b(?:case\b(?:[^;:]|::)*|default):(?!:)/;

# Puts each statement of the code into a condition.
sub mutated {
    my ($file, $code) = @_;
    my $masked = masked($code);
    my %insertions;
    while ($masked =~ /$before\s*(?=(?<statement>(?:[^][(){};]++|(?&group))+;))/g) {
        my $start = pos $masked;
        my $length = length $+{statement};
        next unless is_expression($+{statement});
        my $line = 1 + (substr($code, 0, $start) =~ tr/\n//);
        (my $text = substr($code, $start, $length)) =~ s/\s+/ /g;
        printf "%d\t%s\t%d\t%s\n", ++$number, $file, $line, $text;
        $insertions{$start} .= "{ if (mutantKeeps($number)) { ";
        $insertions{$start + $length} = ' } }' . ($insertions{$start + $length} // '');
        pos($masked) = $start; # statements within this one
    }
    substr($code, $_, 0) = $insertions{$_} for sort { $b <=> $a } keys %insertions;
    return "#include \"$to/mutant.h\"\n#line 1\n$code";
}

local $/ = "\0";
while (my $file = <STDIN>) {
    chomp $file;
    my $code = content($file) // next; # deleted, and not committed yet
    $code = mutated($file, $code) if $is_mutated{$file};
    my $copy = "$to/$file";
    next if ($code eq (content($copy) // "\0")); # so that nothing is built for nothing
    make_path(dirname($copy));
    open(my $out, '>:raw', $copy) or die "$copy: $!";
    print $out $code;
    close($out) or die "$copy: $!";
}
