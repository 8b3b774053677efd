"""The chart of docs/speed.svg."""

OWN, OTHER = "#3a78ff", "#9aa7bd"
HEAD, BAR, GAP = 34, 18, 8


def draw(conversions, path):
    """Bars of wall time, one block for each kind of copy; text in a grey that reads on white and on black."""
    longest = max(tool["wall"] for entry in conversions for tool in entry["tools"].values() if tool)
    lines = []
    y = 0
    for entry in conversions:
        lines.append(f'<text x="12" y="{y + 22}" font-weight="600">One 12-megapixel photo to {entry["kind"].upper()}, seconds</text>')
        y += HEAD
        for name, tool in entry["tools"].items():
            if tool is None or name == "decode only":
                continue
            width = max(2, 420 * tool["wall"] / longest)
            own = name == "lumaport"
            lines.append(f'<text x="112" y="{y + 14}" text-anchor="end">{"Lumaport" if own else name}</text>')
            lines.append(f'<rect x="122" y="{y}" width="{width:.0f}" height="{BAR}" rx="4" fill="{OWN if own else OTHER}"/>')
            lines.append(f'<text x="{130 + width:.0f}" y="{y + 14}">{tool["wall"]:.2f}</text>')
            y += BAR + GAP
        y += 10
    head = f'<svg xmlns="http://www.w3.org/2000/svg" width="640" height="{y}" font-family="sans-serif" font-size="13" fill="#7d8796">'
    path.write_text("\n".join([head, *lines, "</svg>", ""]), encoding="utf-8")
