// There are no windows: a link that is to open one of its own is followed in the page. Only what the user
// does counts; a script's click on a link is no trusted event. Runs in every frame, in a world that the
// page's scripts don't see.
(function () {
    'use strict';

    function linkOf(event) {
        const isLink = (node) => node instanceof HTMLAnchorElement || node instanceof HTMLAreaElement;
        return event.composedPath().find(isLink);
    }

    // Names that are no keywords may be those of frames, where the page has some.
    function opensWindow(link) {
        const target = link.target || document.querySelector('base[target]')?.target || '';
        const keyword = target.startsWith('_') ? target.toLowerCase() : '';
        return keyword === '_blank' || (target !== '' && keyword === '' && top.length === 0);
    }

    function keepInPage(link) {
        const written = link.getAttribute('target');
        link.target = '_top';
        setTimeout(() => {
            if (written === null) {
                link.removeAttribute('target');
            } else {
                link.target = written;
            }
        });
    }

    function follow(event) {
        const link = event.isTrusted && event.button <= 1 ? linkOf(event) : undefined;
        if (link === undefined) {
            return;
        }
        const asksForWindow = event.button === 1 || event.ctrlKey || event.shiftKey || event.metaKey;
        if (asksForWindow || opensWindow(link)) {
            keepInPage(link);
        }
        if (asksForWindow) {
            link.click();
        }
    }

    addEventListener('click', follow, true);
    addEventListener('auxclick', follow, true);
})();
