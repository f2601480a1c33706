#include "tools/rulesctl/pages/fleetpage.h"

#include "tools/rulesctl/pages/page.h"

#include <numeric>

namespace
{

const char* const kStyle = R"(
form { position: sticky; top: 0; z-index: 1; display: flex; flex-wrap: wrap; gap: .75rem;
  align-items: center; padding: .75rem 0; background: var(--ground); }
input, select { font: inherit; color: inherit; background: var(--card);
  border: 1px solid var(--soft); border-radius: 6px; padding: .4rem .6rem; }
input { flex: 1 1 16rem; max-width: 32rem; }
main { display: grid; grid-template-columns: repeat(auto-fill, minmax(20rem, 1fr)); gap: 1rem; }
article { background: var(--card); border: 1px solid var(--line); border-radius: 8px;
  overflow: hidden; content-visibility: auto; contain-intrinsic-size: auto 18rem; }
article[hidden] { display: none; }
header { display: flex; justify-content: space-between; gap: .5rem; padding: .5rem .75rem; }
.picture { aspect-ratio: 16 / 9; background: #000; }
article p, article ul { padding: .4rem .75rem; margin: 0; overflow-wrap: anywhere; }
article ul { list-style: none; padding-top: 0; }
article p:empty, article ul:not(:has(li)) { display: none; }
.ok b { color: var(--good); }
.fails b, .unreadable b, .failure { color: var(--bad); }
.finding { color: var(--warn); }
)";

/// Of many cameras pictures become elements when they come into sight: browsers take long to build
/// all of them.
const char* const kScript = R"(
const find = document.getElementById('find');
const show = document.getElementById('show');
const shown = document.getElementById('shown');
const cards = Array.from(document.querySelectorAll('article'));
function draw(card) {
  const text = card.querySelector('.picture script');
  if (text)
    text.parentNode.innerHTML = text.textContent;
}
const seen = new IntersectionObserver(entries => {
  for (const entry of entries) {
    if (entry.isIntersecting) {
      seen.unobserve(entry.target);
      draw(entry.target);
    }
  }
}, {rootMargin: '50%'});
if (cards.length <= 200)
  cards.forEach(draw);
else
  cards.forEach(card => seen.observe(card));
window.addEventListener('beforeprint', () => cards.forEach(draw));
function filter() {
  const words = find.value.toLowerCase().split(/\s+/).filter(word => word);
  let count = 0;
  for (const card of cards) {
    const isShown = (show.value === 'all' || card.classList.contains(show.value)) &&
      words.every(word => card.dataset.find.includes(word));
    card.hidden = !isShown;
    count += isShown;
  }
  shown.textContent = count + ' of ' + cards.length;
}
function remember() {
  filter();
  const state = new URLSearchParams({find: find.value, show: show.value});
  history.replaceState(null, '', '#' + state);
}
function recall() {
  const state = new URLSearchParams(location.hash.slice(1));
  find.value = state.get('find') || '';
  show.value = state.get('show') || 'all';
  if (show.selectedIndex < 0)
    show.value = 'all';
  filter();
}
find.addEventListener('input', remember);
show.addEventListener('change', remember);
document.forms[0].addEventListener('submit', event => event.preventDefault());
window.addEventListener('hashchange', recall);
recall();
)";

const char* const kForm = R"(<form>
<input id="find" type="search" placeholder="Search names, rules and messages" aria-label="Search">
<select id="show" aria-label="Show">
<option value="all">All cameras</option>
<option value="ok">May be saved</option>
<option value="fails">Fail the check</option>
<option value="findings">Have findings</option>
<option value="unreadable">Cannot be read</option>
</select>
<output id="shown" class="soft"></output>
</form>
)";

} // namespace

QByteArray FleetPage::of(const QString& templateFile, const Counts& counts,
                         const std::vector<QByteArray>& cards)
{
    Page page(QStringLiteral("Rules of %1 cameras").arg(cards.size()), kStyle, kScript);
    page.addText("h1", QStringLiteral("Rules of %1 cameras").arg(cards.size()));
    page.addText(
        "p",
        QStringLiteral("%1 may be saved, %2 fail the check, %3 cannot be read. Template: %4")
            .arg(QString::number(counts.ok), QString::number(counts.fails),
                 QString::number(counts.unreadable), templateFile),
        "class=\"soft\"");
    page.add(kForm);
    page.add("<main>\n");
    for (const QByteArray& card : cards)
        page.add(card);
    page.add("</main>\n");
    return page.html();
}
