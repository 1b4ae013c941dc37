#!/usr/bin/env perl
# Copies the reference folder into the language folder, and replaces the placeholders of the pages on the way, with a
# hash and one regular expression.
use strict;
use warnings;

die "usage: $0 SYS-FOLDER LANGUAGE-FOLDER MAP-FILE\n" if @ARGV != 3;
my ($reference, $language, $map_file) = @ARGV;
my $mark = "\xEF\xBB\xBF";
my %value = read_map($map_file);
copy_folder($reference, $language);

sub read_map {
    my ($path) = @_;
    open my $file, '<:raw:encoding(UTF-16)', $path or die "$path: $!\n";
    my $text = do { local $/; <$file> };
    utf8::encode($text);
    my %pairs;
    for my $line (split /\r?\n/, $text) {
        my ($token, $translated) = split /\t/, $line, 2;
        $pairs{$token} = $translated if defined $translated;
    }
    return %pairs;
}

sub copy_folder {
    my ($from, $to) = @_;
    mkdir $to or $!{EEXIST} or die "$to: $!\n";
    opendir my $folder, $from or die "$from: $!\n";
    for my $name (grep { $_ ne '.' && $_ ne '..' } readdir $folder) {
        if (-d "$from/$name") {
            copy_folder("$from/$name", "$to/$name");
        } else {
            copy_file("$from/$name", "$to/$name", $name =~ /\.(?:aspx?|ascx|js|xml)\z/i);
        }
    }
    return;
}

sub copy_file {
    my ($from, $to, $is_page) = @_;
    open my $in, '<:raw', $from or die "$from: $!\n";
    my $bytes = do { local $/; <$in> } // '';
    if ($is_page) {
        $bytes =~ s/(\[CV_TXT-[^\]\r\n]*\])/$value{$1} \/\/ $1/ge;
        $bytes = $mark . $bytes if substr($bytes, 0, 3) ne $mark;
    }
    open my $out, '>:raw', $to or die "$to: $!\n";
    print {$out} $bytes or die "$to: $!\n";
    close $out or die "$to: $!\n";
    return;
}
