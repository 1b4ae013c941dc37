#!/usr/bin/env python3
"""Writes a large installation for the benchmarks; equal arguments give equal bytes."""

import argparse
import itertools
import os
import random
import re
import sys

PRESETS = {"medium": (2000, 20_000, 3000), "large": (8000, 30_000, 12_000)}
PAGES_PER_FOLDER = 50
FOLDERS_PER_MODULE = 8
VARIANTS_PER_BLOCK = 60
SLOT = "\0"  # stands in a prepared block where a placeholder goes
UNKNOWN = ["[CV_TXT-%s]" % name for name in
           ("RETIRED_BANNER", "BETA_NOTICE", "OLD_FOOTER", "PREVIEW_LABEL")]
AREAS = ("INBOX", "COMPOSE", "CONTACTS", "CALENDAR", "FOLDERS", "SEARCH", "OPTIONS", "FILTERS",
         "LOGIN", "ATTACHMENTS", "TASKS", "QUOTA", "SIGNATURE", "JUNK", "SECURITY", "HELP")
ITEMS = ("TITLE", "LABEL", "HINT", "BUTTON", "MESSAGE", "ERROR", "COLUMN", "MENU", "CONFIRM",
         "STATUS", "TOOLTIP")
MODULES = ("Mail", "Contacts", "Calendar", "Options", "Admin", "Search", "Reports", "Mobile")
SECTIONS = ("Lists", "Forms", "Dialogs", "Controls", "Wizard", "Print", "Popup")
PAGE_NAMES = ("Default", "List", "Edit", "View", "Details", "Select", "Confirm", "Import",
              "Export", "Toolbar", "Summary", "Header", "Status", "Preferences")
WORDS = ("Message", "Folder", "Sender", "Subject", "Contact", "Group", "Event", "Reminder",
         "Filter", "Account", "Domain", "Alias", "Attachment", "Priority", "Recipient", "Draft")

# Blocks of lines: $T is a placeholder, $W a word, $N a number.
MARKUP = ("""\
    <tr class="row$N">
      <td class="caption" style="width: $Npx"><label for="txt$W$N">$T</label></td>
      <td class="field">
        <asp:TextBox ID="txt$W$N" runat="server" MaxLength="$N" CssClass="input" />
        <asp:RequiredFieldValidator ID="req$W$N" runat="server" ControlToValidate="txt$W$N"
            ErrorMessage="$T" Display="Dynamic" EnableClientScript="true" />
      </td>
      <td class="help"><a href="../help/$W.aspx?topic=$N" target="_blank">?</a></td>
    </tr>
    <tr><td colspan="3" class="separator">&nbsp;</td></tr>
""", """\
    <div id="panel$W$N" class="panel" runat="server">
      <h2>$T</h2>
      <asp:Repeater ID="rpt$W$N" runat="server" OnItemDataBound="On$WBound">
        <ItemTemplate>
          <div class="item">
            <span class="name"><%# DataBinder.Eval(Container.DataItem, "$W") %></span>
            <span class="size"><%# FormatSize(Container.DataItem, $N) %></span>
          </div>
        </ItemTemplate>
      </asp:Repeater>
      <p class="note">$T <b>$N</b> $T</p>
    </div>
""", """\
    <asp:DropDownList ID="ddl$W$N" runat="server" AutoPostBack="true" CssClass="choice">
      <asp:ListItem Value="0" Selected="True">$T</asp:ListItem>
      <asp:ListItem Value="$N">$T</asp:ListItem>
    </asp:DropDownList>
    <table border="0" cellpadding="0" cellspacing="$N" summary="">
      <tr>
        <td><img src="../images/$W$N.gif" alt="" width="16" height="16" /></td>
        <td nowrap="nowrap"><%= Get$W($N) %></td>
      </tr>
    </table>
""", """\
    <%-- toolbar of the $W list --%>
    <ul class="toolbar">
      <li><a href="javascript:open$W($N)" title="$T">$T</a></li>
      <li class="gap"></li>
      <li><asp:ImageButton ID="btn$W$N" runat="server" ImageUrl="../images/$W.gif" /></li>
    </ul>
    <div class="clear"></div>
    <% If Session("$W$N") Is Nothing Then %>
    <p class="empty">0</p>
    <% End If %>
""")
SCRIPT = ("""\
    <script type="text/javascript">
      function check$W$N(form) {
        var field = form.elements['$W'];
        if (field.value.length > $N) {
          alert('$T');
          field.focus();
          return false;
        }
        return confirm("$T");
      }
    </script>
""", """\
    <script type="text/javascript">
      var rows$N = document.getElementById("$W$N");
      for (var i = 0; rows$N && i < rows$N.length; i++) {
        if (i % 2 == 0) {
          rows$N[i].className = 'even'; // every other row
        }
      }
      window.status = '$T';
    </script>
""")
JS = ("""\
var names$W$N = new Array(
    "$T",
    "$T");
var codes$W$N = [
    $N, $N, $N, $N, $N, $N,
    $N, $N, $N, $N, $N, $N
];
var widths$W$N = { "small": $N, "large": $N };
/* the order of the columns is that of the list */
names$W$N.selected = 0;
""", """\
function show$W$N(index, target) {
    if (index < 0 || index >= $N) {
        target.innerHTML = '<span class="error">$T</span>';
        return false;
    }
    target.style.width = widths$W[index] + 'px';
    target.title = "$T";
    return true;
}

""")
ASP = ("""\
<%
  Dim obj$W$N
  Set obj$W$N = Server.CreateObject("Corvane.$W")
  If obj$W$N.Count > $N Then
    Response.Write "<p>$T</p>"
  End If
%>
<table width="$N" border="0">
  <tr><td class="caption">$T</td><td><%= obj$W$N.Count %></td></tr>
</table>
""",)
XML = ("""\
  <command id="$W$N" group="$N">
    <text>$T</text>
    <tooltip>$T</tooltip>
    <image width="16" height="16">images/$W.gif</image>
    <permissions>
      <allow role="user" />
      <allow role="administrator" />
    </permissions>
    <handler>$W.aspx?action=$N</handler>
  </command>
""",)
PAGE_HEAD = """\
<%@ Page Language="vb" AutoEventWireup="false" Inherits="Corvane.$W" %>
<!DOCTYPE html>
<html>
  <head><title>$T</title><link rel="stylesheet" href="../styles/main.css" /></head>
  <body>
"""
CONTROL_HEAD = '<%@ Control Language="vb" AutoEventWireup="false" Inherits="Corvane.$W" %>\n'
# extension: share of the pages, head, blocks, foot
KINDS = {
    ".aspx": (70, PAGE_HEAD, MARKUP * 2 + SCRIPT, "  </body>\n</html>\n"),
    ".ascx": (12, CONTROL_HEAD, MARKUP * 2 + SCRIPT, ""),
    ".asp": (6, "<!-- #include file=\"$W.inc\" -->\n", ASP + SCRIPT[:1], "</body></html>\n"),
    ".js": (7, "// client script of the $W pages\n", JS, ""),
    ".xml": (5, '<?xml version="1.0"?>\n<commands>\n', XML, "</commands>\n"),
}

OPENINGS = ("Enregistrer", "Supprimer", "Déplacer", "Créer", "Afficher", "Réinitialiser",
            "Télécharger", "Vérifier", "Sélectionner", "Impossible d'ouvrir", "Voulez-vous ouvrir",
            "Échanger", "Veuillez préciser", "Échec :", "Mettre à jour", "Sauvegarder", "Voir")
OBJECTS = ("le message", "l'adresse", "la boîte de réception", "les pièces jointes", "le modèle",
           "l'élément sélectionné", "la règle", "les préférences", "l'événement", "le thème",
           "le dossier \"Envoyés\"", "le fichier", "l'expéditeur", "la clé", "l'œuvre jointe",
           "le mot de passe", "les contacts", "l’agenda partagé", "le quota", "la tâche")
TAILS = ("avant la fermeture", "s'il n'est pas lu", "dès aujourd'hui", "à l'aide du modèle",
         "ou réessayer", "pour ce compte", "après 30 jours", "et prévenir l'équipe", "(5 €)",
         "dans \"Modèles\"", "à nouveau", "sans délai", "là où c'est prévu", "ci-après")


def token_name(index):
    return f"[CV_TXT-{AREAS[index % len(AREAS)]}_{ITEMS[index * 7 % len(ITEMS)]}_{index:05d}]"


def french_value(rng):
    """A phrase of 10 to 60 characters."""
    wanted = rng.randint(10, 52)
    text = rng.choice(OPENINGS) + " " + rng.choice(OBJECTS)
    for tail in rng.sample(TAILS, 3):
        if len(text) < wanted and len(text) + 1 + len(tail) <= 60:
            text += " " + tail
    return text


def make_map(tokens, seed):
    """The pairs of the map file. A larger map begins with the pairs of a smaller one."""
    rng = random.Random(seed)
    return [(token_name(index), french_value(rng)) for index in range(tokens)]


def write_settings(folder, pairs):
    """The map file (grouped by area, as administrators keep it), language list and registry."""
    text = "".join(f"{token}\t{value}\r\n" for token, value in sorted(pairs))
    with open(os.path.join(folder, "WebMail-default.net-tokens-fr.map"), "wb") as file:
        file.write(b"\xff\xfe" + text.encode("utf-16-le"))
    with open(os.path.join(folder, "WebMail-default.net-lang.txt"), "wb") as file:
        file.write(b"French\tfr\r\n")
    escaped = os.path.abspath(folder).replace("\\", "\\\\").replace('"', '\\"')
    with open(os.path.join(folder, "registry.reg"), "wb") as file:
        file.write(("Windows Registry Editor Version 5.00\n\n"
                    "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\Corvane]\n"
                    f'"Application Directory"="{escaped}"\n'
                    '"Authoring Version"=dword:00000002\n').encode())


def fill(rng, template):
    """Gives a block its words and numbers, and leaves slots for the placeholders."""
    def piece(match):
        return {"T": SLOT, "W": rng.choice(WORDS), "N": str(rng.randint(1, 400))}[match[1]]
    return re.sub(r"\$([TWN])", piece, template).replace("\n", "\r\n")


def prepare_kinds(rng):
    """extension -> (heads, blocks with their expected lengths, foot), ready for quick choosing."""
    kinds = {}
    for extension, (_, head, templates, foot) in KINDS.items():
        texts = [fill(rng, template) for template in templates for _ in range(VARIANTS_PER_BLOCK)]
        blocks = [(text, len(text) + 27 * text.count(SLOT)) for text in texts]
        heads = [fill(rng, head) for _ in range(VARIANTS_PER_BLOCK)]
        kinds[extension] = (heads, blocks, fill(rng, foot))
    return kinds


def page_bytes(rng, kind, size, tokens, weights):
    """A page of about size bytes: blocks until it is long enough, then tokens into the slots."""
    heads, blocks, foot = kind
    chosen = [rng.choice(heads)]
    missing = size - len(chosen[0]) - len(foot) - blocks[0][1] // 2
    while missing > 0:
        text, length = rng.choice(blocks)
        chosen.append(text)
        missing -= length
    chosen.append(foot)
    between = "".join(chosen).split(SLOT)
    woven = [""] * (2 * len(between) - 1)
    woven[0::2] = between
    woven[1::2] = rng.choices(tokens, cum_weights=weights, k=len(between) - 1)
    return "".join(woven).encode("ascii")


def zipf_tokens(count):
    """The known tokens and a few unknown ones, with cumulative Zipf-like weights."""
    weights = [1 / (rank + 3) ** 0.9 for rank in range(count)]
    rare = sum(weights) / 1000
    cumulative = list(itertools.accumulate(weights + [rare] * len(UNKNOWN)))
    return [token_name(index) for index in range(count)] + UNKNOWN, cumulative


def folder_name(index):
    """Every eighth folder is a module, the others are its sections."""
    module, section = divmod(index, FOLDERS_PER_MODULE)
    name = f"{MODULES[module % len(MODULES)]}{module + 1:02d}"
    return os.path.join(name, SECTIONS[section - 1]) if section else name


def write_pictures(rng, folder):
    for number in range(rng.randint(2, 4)):
        with open(os.path.join(folder, f"icon{number}.gif"), "wb") as file:
            file.write(b"GIF89a" + rng.randbytes(rng.randint(1024, 4096) - 6))


def write_pages(reference, pages, size, tokens, seed):
    rng = random.Random(seed + 1)
    kinds = prepare_kinds(rng)
    names, weights = zipf_tokens(tokens)
    shares = [kind[0] for kind in KINDS.values()]
    extensions = rng.choices(list(KINDS), shares, k=pages)
    for index, extension in enumerate(extensions):
        folder = os.path.join(reference, folder_name(index // PAGES_PER_FOLDER))
        if index % PAGES_PER_FOLDER == 0:
            os.makedirs(folder, exist_ok=True)
            write_pictures(rng, folder)
        shown = extension.upper() if rng.random() < 0.025 else extension
        name = f"{rng.choice(PAGE_NAMES)}{index % PAGES_PER_FOLDER:02d}{shown}"
        varied = int(size * rng.uniform(0.7, 1.3))
        with open(os.path.join(folder, name), "wb") as file:
            file.write(page_bytes(rng, kinds[extension], varied, names, weights))


def write_single_line(reference, size, tokens, seed):
    """One page without a single line end."""
    rng = random.Random(seed + 1)
    page = page_bytes(rng, prepare_kinds(rng)[".aspx"], size, *zipf_tokens(tokens))
    with open(os.path.join(reference, "Line.aspx"), "wb") as file:
        file.write(page.replace(b"\r\n", b" "))


def write_installation(folder, pages, size, tokens, seed=1, page_tokens=None, single_line=False):
    """page_tokens: the pages use only so many of the first tokens (default: all)."""
    reference = os.path.join(folder, "NETWebMail", "default", "lang", "SYS")
    os.makedirs(reference)
    write_settings(folder, make_map(tokens, seed))
    used = min(tokens, page_tokens or tokens)
    if single_line:
        write_single_line(reference, size, used, seed)
    else:
        write_pages(reference, pages, size, used, seed)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("folder", metavar="FOLDER", help="a new or empty folder")
    parser.add_argument("--size", choices=PRESETS, help="preset for the next three options")
    parser.add_argument("--pages", type=int)
    parser.add_argument("--page-bytes", type=int)
    parser.add_argument("--tokens", type=int)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--page-tokens", type=int, help="pages use only the first so many tokens")
    parser.add_argument("--single-line", action="store_true", help="one page of one line")
    args = parser.parse_args()
    preset = PRESETS.get(args.size, (1 if args.single_line else None, None, None))
    given = (args.pages, args.page_bytes, args.tokens)
    sizes = [mine if mine is not None else theirs for mine, theirs in zip(given, preset)]
    if None in sizes or min(sizes) < 1:
        parser.error("give --size, or --pages, --page-bytes and --tokens, each at least 1")
    if os.path.isdir(args.folder) and os.listdir(args.folder):
        sys.exit(f"{args.folder} is not empty")
    write_installation(args.folder, *sizes, seed=args.seed, page_tokens=args.page_tokens,
                       single_line=args.single_line)


if __name__ == "__main__":
    main()
